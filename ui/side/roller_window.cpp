#include "ui/side/roller_window.h"

#include <QBoxLayout>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QTabBar>
#include <algorithm>
#include <utility>

#include "app/keys.h"
#include "roller/modifier_board.h"
#include "ui/look/layout_kit.h"
#include "ui/side/roller_groups.h"
#include "ui/side/roller_pages.h"
#include "ui/widgets/elided_label.h"
#include "ui/wiring/button_keys.h"

namespace ng {
namespace {

constexpr QSize kSize(660, 560);
constexpr int kMargin = 8;
constexpr int kStripHeight = 36;

constexpr unsigned PageBit(TestPage page) { return 1U << static_cast<unsigned>(page); }
constexpr unsigned kRanged = PageBit(TestPage::Ranged);
constexpr unsigned kMelee = PageBit(TestPage::Melee);
constexpr unsigned kBodyDodge = PageBit(TestPage::BodyDodge);
constexpr unsigned kGeneral = PageBit(TestPage::General);

}  // namespace

RollerWindow::RollerWindow(const Perform& perform, QWidget* parent)
    : SideWindow("ngdr", "Dice roller", perform, parent) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin - 2, kMargin, kMargin);
  column->setSpacing(6);
  QFrame* strip = MakeStrip();
  QTabBar* tabs = MakeTabs();
  const ModifiersGroup modifiers = MakeModifiersGroup(perform, this);
  auto* right = new QVBoxLayout;
  right->setSpacing(6);
  right->addWidget(MakeDiceGroup(this));
  right->addWidget(MakeResultGroup(this), 1);
  QHBoxLayout* halves = MakeRow(kGroupGap);
  halves->addWidget(modifiers.group, 6);
  halves->addLayout(right, 5);
  column->addWidget(strip);
  column->addWidget(tabs);
  column->addLayout(halves, 1);
  BuildMenu(perform);
  AddFightKeys(*this, perform);
  KeepEditingKeys(*this);
  connect(tabs, &QTabBar::currentChanged, modifiers.pages, &QStackedWidget::setCurrentIndex);
  connect(tabs, &QTabBar::currentChanged, this, &RollerWindow::ShowPage);
  ShowPage(tabs->currentIndex());
  resize(kSize);
}

QFrame* RollerWindow::MakeStrip() {
  auto* strip = new QFrame(this);
  strip->setObjectName(QStringLiteral("testStrip"));
  strip->setFrameShape(QFrame::StyledPanel);
  strip->setFixedHeight(kStripHeight);
  QHBoxLayout* row = MakeRow(6);
  strip->setLayout(row);
  row->setContentsMargins(10, 0, 10, 0);
  const auto show = [this, row](QWidget* widget, unsigned pages, int share = 0) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
    row->addWidget(widget, share);
    stripParts_.push_back({widget, pages});
  };
  ElidedLabel* name = MakeElided(QStringLiteral("lblName"), strip);
  name->setFont(InterfaceFont(12, true));
  name->setAccessibleName("Combatant");
  row->addWidget(name, 5);
  ElidedLabel* skill = MakeElided(QStringLiteral("lblSkill"), strip);
  Embolden(skill);
  skill->setAccessibleName("Skill");
  show(MakeCaption("Skill", strip), kRanged | kMelee | kGeneral);
  show(skill, kRanged | kMelee | kGeneral, 5);
  ElidedLabel* damage = MakeElided(QStringLiteral("lblDamageCode"), strip);
  Embolden(damage);
  damage->setAccessibleName("Damage code");
  show(MakeCaption("Damage", strip), kRanged | kMelee | kBodyDodge);
  show(damage, kRanged | kMelee | kBodyDodge, 3);
  ElidedLabel* bullets = MakeElided(QStringLiteral("lblBulletCount"), strip);
  Embolden(bullets);
  bullets->setAccessibleName("Bullets");
  show(MakeCaption("Bullets", strip), kRanged | kBodyDodge);
  show(bullets, kRanged | kBodyDodge, 1);
  return strip;
}

QTabBar* RollerWindow::MakeTabs() {
  auto* tabs = new QTabBar(this);
  tabs->setObjectName(QStringLiteral("tabTest"));
  tabs->setAccessibleName("Kind of test");
  tabs->setExpanding(true);
  tabs->setDocumentMode(true);
  tabs->setDrawBase(false);
  for (const char* title : {"&1 Ranged", "&2 Melee", "&3 Body / Dodge", "&4 General"}) {
    const int tab = tabs->addTab(title);
    tabs->setTabToolTip(tab, TipWithKey("Start a test of this kind for the combatant shown",
                                        QStringLiteral("Alt+%1").arg(tab + 1)));
  }
  return tabs;
}

void RollerWindow::BuildMenu(const Perform& perform) {
  auto* bar = new QMenuBar(this);
  QMenu* menu = bar->addMenu("&Shortcuts");
  menu->setToolTipsVisible(true);
  const auto add = [this, menu](const char* name, const QString& text) {
    QAction* action = menu->addAction(text);
    action->setObjectName(QString::fromLatin1(name));
    action->setToolTip(QString::fromLatin1(RollerKey(name).words));
    action->setShortcut(
        QKeySequence(QString::fromLatin1(RollerKey(name).key), QKeySequence::PortableText));
    return action;
  };
  connect(add("Roll", "&Roll"), &QAction::triggered, this,
          [perform] { perform({"ngdr.cmdRoll"}); });
  const auto focus = [this](const char* box) {
    auto* edit = findChild<QLineEdit*>(QString::fromLatin1(box));
    return [edit] {
      edit->setFocus(Qt::ShortcutFocusReason);
      edit->selectAll();
    };
  };
  connect(add("NumDice", "&Number of dice"), &QAction::triggered, this, focus("txtNumDice"));
  connect(add("TargNum", "&Target number"), &QAction::triggered, this, focus("txtTargetNum"));
  layout()->setMenuBar(bar);
}

void RollerWindow::ShowPage(int page) {
  for (const StripPart& part : stripParts_) {
    part.widget->setVisible((part.pages >> static_cast<unsigned>(page) & 1U) != 0);
  }
}

void RollerWindow::Opening() {
  PlaceBesideMainWindow();
  // A stray key must not change the test that the main window set up; Enter rolls it.
  findChild<QPushButton*>(QStringLiteral("cmdRoll"))->setFocus();
}

/// At first to the right of the main window, over its edge as far as the screen has no room. Later
/// it stays where the game master put it.
void RollerWindow::PlaceBesideMainWindow() {
  if (std::exchange(placed_, true)) return;
  const QWidget* main = parentWidget();
  const QRect screen = main->screen()->availableGeometry();
  const QRect frame = main->frameGeometry();
  const int left = std::min(frame.right() + kMargin, screen.right() - width() - kMargin);
  const int top = std::min(main->geometry().top(), screen.bottom() - height() - 2 * kMargin);
  move(std::max(left, screen.left()), std::max(top, screen.top()));
}

}  // namespace ng
