#include "ui/dialogs/about_dialog.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/look/icons.h"
#include "ui/look/layout_kit.h"
#include "ui/look/theme.h"

namespace ng {
namespace {

constexpr int kWidth = 460;
constexpr int kIconSize = 64;
constexpr int kEdge = 16;

QVBoxLayout* MakeBuiltOn(QWidget* parent) {
  const QString texts[] = {
      "No licence has been chosen yet; please ask before redistributing.",
      QStringLiteral("Built with Qt %1, running on Qt %2. Qt is used under the GNU Lesser General "
                     "Public License version 3.")
          .arg(QStringLiteral(QT_VERSION_STR), QString::fromLatin1(qVersion())),
      "Uses Noto Sans (SIL Open Font License) where installed.",
      "The icons are drawn by the program itself."};
  QVBoxLayout* column = MakeColumn();
  for (const QString& text : texts) {
    QLabel* label = MakeCaption(text, parent);
    label->setWordWrap(true);
    label->setFixedWidth(kWidth);
    column->addWidget(label);
  }
  return column;
}

QVBoxLayout* MakeTitle(QWidget* parent) {
  auto* name = new QLabel(QStringLiteral("NGtracker"), parent);
  name->setFont(InterfaceFont(17, true));
  auto* what = new QLabel(
      "A combat tracker for the game master of the tabletop "
      "role-playing game Nightgrid.",
      parent);
  what->setWordWrap(true);
  QVBoxLayout* column = MakeColumn();
  column->setSpacing(kRowGap);
  column->addWidget(name);
  column->addWidget(
      MakeCaption(QStringLiteral("Version %1").arg(QStringLiteral(NG_VERSION)), parent));
  column->addWidget(what);
  return column;
}

}  // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle("About NGtracker");
  auto* icon = new QLabel(this);
  icon->setPixmap(ApplicationIcon().pixmap(QSize(kIconSize, kIconSize), devicePixelRatio()));
  auto* head = MakeRow(kEdge);
  head->addWidget(icon, 0, Qt::AlignTop);
  head->addLayout(MakeTitle(this), 1);
  QPushButton* ok = MakeButton({QStringLiteral("cmdOK"), "OK", "Close the window"}, "OK", this);
  ok->setDefault(true);
  ok->setMinimumSize(91, kButtonHeight);
  connect(ok, &QPushButton::clicked, this, &AboutDialog::accept);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
  column->setSpacing(kEdge);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->addLayout(head);
  column->addWidget(MakeLine(Qt::Horizontal, this));
  column->addLayout(MakeBuiltOn(this));
  column->addWidget(ok, 0, Qt::AlignRight);
}

}  // namespace ng
