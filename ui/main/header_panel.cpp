#include "ui/main/header_panel.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <utility>

#include "ui/look/layout_kit.h"
#include "ui/look/theme.h"
#include "ui/widgets/elided_label.h"

namespace ng {
namespace {

constexpr int kHeight = 67;
constexpr int kBadgeWidth = 86;

/// Wide enough for `sample` in the label's own font, whatever it shows.
void HoldWidth(QLabel& label, const QString& sample) {
  label.setFixedWidth(QFontMetrics(label.font()).horizontalAdvance(sample));
}

}  // namespace

HeaderPanelView::HeaderPanelView(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("headerPanel"));
  setFrameShape(StyledPanel);
  setFixedHeight(kHeight);
  auto* figures = new QVBoxLayout;
  figures->setSpacing(5);
  figures->addLayout(BuildInitiative());
  figures->addLayout(BuildArmour());

  auto* all = new QHBoxLayout(this);
  all->setContentsMargins(12, 4, 11, 5);
  all->setSpacing(10);
  all->addLayout(BuildIdentity(), 1);
  all->addWidget(MakeLine(Qt::Vertical, this));
  all->addLayout(figures);
}

QBoxLayout* HeaderPanelView::BuildIdentity() {
  auto* name = new ElidedLabel(this);
  name->setObjectName(QStringLiteral("lblName2"));
  name->setFont(InterfaceFont(17, true));
  auto* badge = new QLabel(this);
  badge->setObjectName(QStringLiteral("lblTurn"));
  badge->setFrameShape(QFrame::StyledPanel);
  badge->setFont(InterfaceFont(10, true));
  badge->setAlignment(Qt::AlignCenter);
  badge->setFixedSize(kBadgeWidth, 22);
  badge->setToolTip("The combatant's state in this turn");
  auto* race = new ElidedLabel(this);
  race->setObjectName(QStringLiteral("lblRace2"));
  race->setProperty("tone", "muted");

  QHBoxLayout* second = MakeRow(8);
  second->addWidget(badge);
  second->addWidget(race, 1);
  auto* column = new QVBoxLayout;
  column->setSpacing(2);
  column->addWidget(name);
  column->addLayout(second);
  return column;
}

QBoxLayout* HeaderPanelView::BuildInitiative() {
  QHBoxLayout* row = MakeRow(5);
  row->addWidget(MakeCaption("Init", this));
  AddBox(*row, "txtRRSLT", 44, "Rolled initiative");
  row->addWidget(MakeCaption("Net", this));
  auto* net = new QLabel(this);
  net->setObjectName(QStringLiteral("lblFRSLT"));
  net->setFont(InterfaceFont(10, true));
  net->setToolTip("Initiative less the wound modifier");
  HoldWidth(*net, QStringLiteral("-00"));
  row->addWidget(net);
  row->addSpacing(4);
  row->addWidget(MakeCaption("Dice", this));
  AddBox(*row, "txtInit_0", 34, "Initiative dice, natural");
  AddBox(*row, "txtInit_1", 34, "Initiative dice, augmented");
  row->addSpacing(4);
  row->addWidget(MakeCaption("React.", this));
  AddBox(*row, "txtReac_0", 34, "Reaction, natural");
  AddBox(*row, "txtReac_1", 34, "Reaction, augmented");
  row->addSpacing(5);

  // The only radio buttons of this panel, so that they exclude one another.
  const std::pair<const char*, const char*> modes[] = {
      {"Ph&ysical", "Physical = Augmented Initiative (D6) + Augmented Reaction"},
      {"&Astral", "Astral = Natural Initiative (D6) + Natural Reaction + 20"}};
  int index = 0;
  for (const auto& [text, tip] : modes) {
    auto* mode = new QRadioButton(text, this);
    mode->setObjectName(ElementName("optInitMode", index++));
    mode->setToolTip(QStringLiteral("%1\nTakes effect at the next reroll").arg(tip));
    row->addWidget(mode);
  }
  return row;
}

QBoxLayout* HeaderPanelView::BuildArmour() {
  struct Slot {
    const char* name;
    int width;
    QString tip;
  };
  const Slot slots_[] = {{"lblBAL", 66, "BAL: ballistic armour"},
                         {"lblIMP", 62, "IMP: impact armour"},
                         {"lblQCKmod", 76, "QCK: quickness lost to heavy armour"},
                         {"lblCPmod", 92, "CPmod: combat pool lost to heavy armour"},
                         {"lblLWght", 96, "Wgt: weight worn and carried"}};
  QHBoxLayout* row = MakeRow(5);
  for (const Slot& slot : slots_) {
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(slot.name));
    label->setFont(InterfaceFont(10, true));
    label->setFixedSize(slot.width, kBoxHeight);
    label->setToolTip(slot.tip);
    row->addWidget(label);
  }
  row->addStretch();
  return row;
}

void HeaderPanelView::AddBox(QBoxLayout& row, const char* objectName, int width,
                             const QString& name) {
  QLineEdit* box = MakeBox({QString::fromLatin1(objectName), name, name}, width, this);
  row.addWidget(box);
}

}  // namespace ng
