#include "ui/about_dialog.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/icons.h"
#include "ui/layout_kit.h"
#include "ui/theme.h"

namespace ng {
namespace {

constexpr int kWidth = 460;
constexpr int kIconSize = 64;
constexpr int kEdge = 16;

QString BuiltOn() {
  return AboutDialog::tr(
             "Built with Qt %1, running on Qt %2, under the GNU Lesser General Public License "
             "version 3.\n"
             "The text is set in Noto Sans where the system has it, under the SIL Open Font "
             "License.\n"
             "The program draws its icons itself.")
      .arg(QStringLiteral(QT_VERSION_STR), QString::fromLatin1(qVersion()));
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
  QLabel* builtOn = MakeCaption(BuiltOn(), this);
  builtOn->setWordWrap(true);
  builtOn->setTextInteractionFlags(Qt::TextSelectableByMouse);
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
  column->addWidget(builtOn);
  column->addWidget(ok, 0, Qt::AlignRight);
  builtOn->setFixedWidth(kWidth);
}

}  // namespace ng
