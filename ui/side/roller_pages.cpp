#include "ui/side/roller_pages.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <functional>
#include <string>
#include <utility>

#include "roller/modifier_board.h"
#include "ui/look/layout_kit.h"
#include "ui/widgets/elided_label.h"

namespace ng {
namespace {

constexpr int kModifierBoxWidth = 48;
constexpr int kListWidth = 178;
constexpr int kPlainRowHeight = 20;

/// Sets a box back to zero: the right click, Shift+click or Del on what is beside the box.
class ClearClick : public QObject {
 public:
  ClearClick(QWidget* caption, std::function<void()> clear)
      : QObject(caption), clear_(std::move(clear)) {
    caption->installEventFilter(this);
  }

  bool eventFilter(QObject* /*caption*/, QEvent* event) override {
    if (!Asks(*event)) return false;
    clear_();
    return true;
  }

 private:
  static bool Asks(const QEvent& event) {
    if (event.type() == QEvent::KeyPress) {
      return static_cast<const QKeyEvent&>(event).key() == Qt::Key_Delete;
    }
    // The second press of quick clicks comes as a double click.
    if (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::MouseButtonDblClick) {
      return false;
    }
    const auto& click = static_cast<const QMouseEvent&>(event);
    return click.button() == Qt::RightButton || click.modifiers().testFlag(Qt::ShiftModifier);
  }

  std::function<void()> clear_;
};

/// The rows of one page.
class PageBuilder {
 public:
  PageBuilder(Perform perform, QWidget* page)
      : perform_(std::move(perform)), page_(page), rows_(new QVBoxLayout(page)) {
    rows_->setContentsMargins(0, 0, 0, 0);
    rows_->setSpacing(kRowGap);
  }

  /// With an empty name the number cannot be changed.
  QLabel* AddBase(const QString& name, const QString& words) {
    QLineEdit* box = MakeBox({name, words, "What the target number starts from, before modifiers"},
                             kModifierBoxWidth, page_);
    if (name.isEmpty()) {
      box->setText(QStringLiteral("4"));
      box->setReadOnly(true);
      box->setFocusPolicy(Qt::ClickFocus);
    }
    QLabel* caption = MakeCaption(words, page_);
    caption->setBuddy(box);
    QHBoxLayout* row = MakeRow(kGroupGap);
    row->addWidget(caption, 1);
    row->addWidget(box);
    rows_->addLayout(row);
    return caption;
  }

  QComboBox* AddList(const QString& words, const Naming& naming, int box) {
    auto* list = new QComboBox(page_);
    list->setObjectName(naming.name);
    list->setAccessibleName(naming.accessible);
    list->setToolTip(naming.tip);
    list->setFixedSize(kListWidth, kBoxHeight);
    QLabel* caption = MakeCaption(words, page_);
    caption->setBuddy(list);
    caption->setToolTip("Right click or Shift+click: back to the first entry, and 0");
    ClearWith(caption, box);
    QHBoxLayout* row = MakeRow(kGroupGap);
    row->addWidget(caption, 1);
    row->addWidget(list);
    row->addWidget(MakeModifierBox(box, words));
    rows_->addLayout(row);
    return list;
  }

  void AddCaption(const Caption& caption) {
    const QString words = QString::fromLatin1(caption.text);
    QPushButton* button =
        MakeButton({QString::fromLatin1(caption.control), words,
                    "Click (Space): the next step\nRight click or Shift+click (Del): back to 0"},
                   words, page_);
    button->setProperty("shape", "caption");
    button->setFixedHeight(kBoxHeight);
    ClearWith(button, caption.box);
    QHBoxLayout* row = MakeRow(kGroupGap);
    row->addWidget(button, 1);
    row->addWidget(MakeModifierBox(caption.box, words));
    rows_->addLayout(row);
  }

  /// A caption with a value that another window determines.
  void AddFact(const QString& words, const QString& name) {
    QLabel* value = MakeValue(name, page_);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    value->setMinimumWidth(2 * kModifierBoxWidth);
    value->setFixedHeight(kPlainRowHeight);
    value->setAccessibleName(words);
    QHBoxLayout* row = MakeRow();
    row->addWidget(MakeCaption(words, page_), 1);
    row->addWidget(value);
    rows_->addLayout(row);
  }

  void AddLine() { rows_->addWidget(MakeLine(Qt::Horizontal, page_)); }
  void Close() { rows_->addStretch(1); }

 private:
  QLineEdit* MakeModifierBox(int box, const QString& words) {
    QLineEdit* modifier =
        MakeBox({ElementName("txtRVar", box), QStringLiteral("Modifier: %1").arg(words),
                 "Modifier of the target number; 0 does not apply"},
                kModifierBoxWidth, page_);
    modifier->setProperty("nonZero", false);
    return modifier;
  }

  void ClearWith(QWidget* caption, int box) {
    new ClearClick(caption, [perform = perform_, box] {
      perform({"ngdr.txtRVar_Clear", box, {}});
    });
  }

  Perform perform_;
  QWidget* page_;
  QVBoxLayout* rows_;
};

/// The modifiers that come from the combatant are above the lists, the situation's below.
bool BroughtAlong(const Caption& caption) { return caption.steps.empty(); }

void AddCaptions(PageBuilder& builder, TestPage page, bool (*wanted)(const Caption&)) {
  for (const Caption& caption : Captions()) {
    if (caption.page == page && wanted(caption)) builder.AddCaption(caption);
  }
}

void AddBroughtAlong(PageBuilder& builder, TestPage page) {
  AddCaptions(builder, page, BroughtAlong);
}

void AddSituation(PageBuilder& builder, TestPage page) {
  builder.AddLine();
  AddCaptions(builder, page, [](const Caption& caption) { return !BroughtAlong(caption); });
}

void AddVisibility(PageBuilder& builder, const QString& name, int box) {
  builder.AddList("Visibility",
                  {name, "Visibility",
                   "Light and smoke; the modifier depends on the combatant's eyes "
                   "(Up and Down)"},
                  box);
}

void FillRanged(PageBuilder& builder) {
  builder.AddBase(QStringLiteral("txtRangeTargetNumber"), "Base number of the range")
      ->setObjectName(QStringLiteral("lblBase"));
  AddBroughtAlong(builder, TestPage::Ranged);
  builder.AddLine();
  AddVisibility(builder, QStringLiteral("cmbVisability"), kVisibilityBox);
  QComboBox* moves = builder.AddList("Attacker",
                                     {QStringLiteral("cmbAttackerMove"), "Attacker's movement",
                                      "How the attacker moves (Up and Down)"},
                                     kAttackerMoveBox);
  for (const AttackerMove& move : AttackerMoves()) moves->addItem(QString::fromLatin1(move.entry));
  AddSituation(builder, TestPage::Ranged);
}

void FillMelee(PageBuilder& builder) {
  builder.AddBase(QStringLiteral("txtMeleeNumber"), "Base number");
  AddBroughtAlong(builder, TestPage::Melee);
  builder.AddLine();
  AddVisibility(builder, QStringLiteral("cmbVisability2"), kVisibility2Box);
  AddSituation(builder, TestPage::Melee);
}

void FillBodyDodge(PageBuilder& builder) {
  builder.AddBase({}, "Base number");
  AddBroughtAlong(builder, TestPage::BodyDodge);
  AddSituation(builder, TestPage::BodyDodge);
  builder.AddLine();
  // Copies of what the strip above the tabs and the result show.
  builder.AddFact("Damage code", QStringLiteral("lblDamageCode2"));
  builder.AddFact("Bullets", QStringLiteral("lblBulletCount2"));
  builder.AddFact("Body", QStringLiteral("lblBody"));
  builder.AddFact("Attacker's successes", QStringLiteral("txtLastSuccesses2"));
  builder.AddFact("Ballistic / impact armour", QStringLiteral("lblArmour"));
}

void FillGeneral(PageBuilder& builder) {
  builder.AddBase({}, "Base number");
  AddBroughtAlong(builder, TestPage::General);
}

QStackedWidget* MakePages(const Perform& perform, QWidget* parent) {
  auto* pages = new QStackedWidget(parent);
  for (void (*fill)(PageBuilder&) : {FillRanged, FillMelee, FillBodyDodge, FillGeneral}) {
    auto* page = new QWidget(pages);
    PageBuilder builder(perform, page);
    fill(builder);
    builder.Close();
    pages->addWidget(page);
  }
  return pages;
}

}  // namespace

ModifiersGroup MakeModifiersGroup(const Perform& perform, QWidget* parent) {
  QGroupBox* group = MakeGroup("Modifiers", parent);
  QVBoxLayout* rows = MakeTightRows(group);
  QStackedWidget* pages = MakePages(perform, group);
  ElidedLabel* sum = MakeElided(QStringLiteral("lblSum"), group);
  Embolden(sum);
  sum->setToolTip("What the target number is made of");
  QPushButton* zero = MakeButton({QStringLiteral("cmdZeroAll"), "Set all to 0",
                                  TipWithKey("Set all modifiers of this page to 0", "Alt+0")},
                                 "Set all to &0", group);
  QHBoxLayout* foot = MakeRow(kGroupGap);
  foot->addWidget(sum, 1);
  foot->addWidget(zero);
  rows->addWidget(pages, 1);
  rows->addWidget(MakeLine(Qt::Horizontal, group));
  rows->addLayout(foot);
  return {group, pages};
}

}  // namespace ng
