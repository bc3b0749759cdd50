#include "ui/wiring/acts.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>
#include <utility>

#include "app/commands.h"
#include "ui/widgets/note_edit.h"
#include "ui/wiring/code_page_input.h"
#include "ui/wiring/copies.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

class Connector {
 public:
  Connector(QObject& owner, const bool& painting, Perform perform, std::string prefix)
      : owner_(owner),
        painting_(painting),
        perform_(std::move(perform)),
        prefix_(std::move(prefix)) {}

  void Connect(QWidget& widget) const {
    if (auto* edit = qobject_cast<QLineEdit*>(&widget)) return ConnectLine(*edit);
    if (auto* edit = qobject_cast<QPlainTextEdit*>(&widget)) return ConnectText(*edit);
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return ConnectButton(*button);
    if (auto* tree = qobject_cast<QTreeWidget*>(&widget)) return ConnectTree(*tree);
    if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) return ConnectTabs(*tabs);
    if (auto* tabs = qobject_cast<QTabBar*>(&widget)) return ConnectTabs(*tabs);
    if (auto* combo = qobject_cast<QComboBox*>(&widget)) return ConnectCombo(*combo);
  }

 private:
  /// The act's control for a widget: the command's name, empty when no command is named after it.
  WidgetName CommandOf(const QWidget& widget, const char* event = "") const {
    WidgetName name = ParseWidgetName(widget.objectName());
    name.control = prefix_ + std::string(ControlOf(name.control)) + event;
    return FindCommand(name.control) == nullptr ? WidgetName() : name;
  }

  void ConnectLine(QLineEdit& edit) const {
    const WidgetName name = CommandOf(edit);
    if (name.control.empty() || edit.isReadOnly()) return;
    KeepToCodePage(edit, perform_);
    QObject::connect(&edit, &QLineEdit::textEdited, &owner_,
                     [name, perform = perform_](const QString& text) {
                       perform({name.control, name.index, FromQString(text)});
                     });
  }

  void ConnectText(QPlainTextEdit& edit) const {
    const WidgetName name = CommandOf(edit);
    if (name.control.empty()) return;
    if (auto* note = qobject_cast<NoteEdit*>(&edit)) {
      QObject::connect(note, &NoteEdit::LeftOut, &owner_,
                       [perform = perform_] { perform({kLeftOutAct}); });
    }
    QObject::connect(&edit, &QPlainTextEdit::textChanged, &owner_,
                     [name, &edit, &painting = painting_, perform = perform_] {
                       if (painting) return;
                       QString text = edit.toPlainText();
                       text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
                       perform({name.control, name.index, FromQString(text)});
                     });
  }

  void ConnectButton(QAbstractButton& button) const {
    const WidgetName name = CommandOf(button);
    if (name.control.empty()) return;
    QObject::connect(&button, &QAbstractButton::clicked, &owner_,
                     [name, &button, perform = perform_](bool checked) {
                       if (button.isCheckable() && !button.autoExclusive()) {
                         button.setChecked(!checked);
                       }
                       perform({name.control, name.index, {}});
                     });
  }

  void ConnectTree(QTreeWidget& tree) const {
    const WidgetName check = CommandOf(tree, "_Check");
    if (!check.control.empty()) {
      QObject::connect(&tree, &QTreeWidget::itemChanged, &owner_,
                       [check, &tree, &painting = painting_, perform = perform_](
                           QTreeWidgetItem* item, int column) {
                         if (painting || column != 0) return;
                         TakeBackMark(tree, *item);
                         perform({check.control, tree.indexOfTopLevelItem(item), {}});
                       });
    }
    const WidgetName select = CommandOf(tree, "_Select");
    if (!select.control.empty()) {
      // The selection and not the current line, which a list sets by itself when it takes the
      // focus.
      QObject::connect(&tree, &QTreeWidget::itemSelectionChanged, &owner_,
                       [select, &tree, &painting = painting_, perform = perform_] {
                         if (painting || tree.selectedItems().isEmpty()) return;
                         QTreeWidgetItem* item = tree.selectedItems().constFirst();
                         perform({select.control, tree.indexOfTopLevelItem(item), {}});
                       });
    }
  }

  static void TakeBackMark(QTreeWidget& tree, QTreeWidgetItem& item) {
    const QSignalBlocker quiet(tree);
    item.setCheckState(0, item.checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
  }

  template <typename Tabs>
  void ConnectTabs(Tabs& tabs) const {
    const WidgetName name = CommandOf(tabs);
    if (name.control.empty()) return;
    QObject::connect(&tabs, &Tabs::currentChanged, &owner_,
                     [name, &painting = painting_, perform = perform_](int page) {
                       if (painting) return;
                       perform({name.control, page, {}});
                     });
  }

  void ConnectCombo(QComboBox& combo) const {
    const WidgetName name = CommandOf(combo);
    if (name.control.empty()) return;
    // Whatever the user chooses, even the entry that is chosen already.
    QObject::connect(&combo, &QComboBox::activated, &owner_,
                     [name, &combo, perform = perform_](int entry) {
                       perform({name.control, entry, FromQString(combo.itemText(entry))});
                     });
  }

  QObject& owner_;
  const bool& painting_;
  Perform perform_;
  std::string prefix_;
};

}  // namespace

WidgetName ParseWidgetName(const QString& objectName) {
  const qsizetype line = objectName.lastIndexOf(QLatin1Char('_'));
  bool number = false;
  const int index = line < 0 ? 0 : objectName.mid(line + 1).toInt(&number);
  if (!number) return {objectName.toStdString(), 0};
  return {objectName.left(line).toStdString(), index};
}

void ConnectActs(QWidget& window, QObject& owner, const bool& painting, const Perform& perform,
                 const std::string& prefix) {
  const Connector connector(owner, painting, perform, prefix);
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->objectName().isEmpty()) connector.Connect(*widget);
  }
}

}  // namespace ng
