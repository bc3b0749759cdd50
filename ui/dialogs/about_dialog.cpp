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
      AboutDialog::tr("The program itself has been given no licence: ask its developers before "
                      "you pass it on."),
      AboutDialog::tr("Built with Qt %1, running on Qt %2. Qt is used under the GNU Lesser General "
                      "Public License version 3.")
          .arg(QStringLiteral(QT_VERSION_STR), QString::fromLatin1(qVersion())),
      AboutDialog::tr(
          "The text is set in the system's Noto Sans, where there is one, which is under the SIL "
          "Open Font License."),
      AboutDialog::tr("The program draws its icons itself.")};
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
  auto* what = new QLabel(AboutDialog::tr("A combat tracker for the game master of the tabletop "
                                          "role-playing game Nightgrid."),
                          parent);
  what->setWordWrap(true);
  QVBoxLayout* column = MakeColumn();
  column->setSpacing(kRowGap);
  column->addWidget(name);
  column->addWidget(
      MakeCaption(AboutDialog::tr("Version %1").arg(QStringLiteral(NG_VERSION)), parent));
  column->addWidget(what);
  return column;
}

}  // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(tr("About NGtracker"));
  auto* icon = new QLabel(this);
  icon->setPixmap(ApplicationIcon().pixmap(QSize(kIconSize, kIconSize), devicePixelRatio()));
  auto* head = MakeRow(kEdge);
  head->addWidget(icon, 0, Qt::AlignTop);
  head->addLayout(MakeTitle(this), 1);
  QPushButton* ok =
      MakeButton({QStringLiteral("cmdOK"), tr("OK"), tr("Close the window")}, tr("OK"), this);
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
