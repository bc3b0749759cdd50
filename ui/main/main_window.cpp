#include "ui/main/main_window.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <algorithm>
#include <string_view>
#include <utility>

#include "app/controls.h"
#include "app/session.h"
#include "ui/look/theme.h"
#include "ui/main/combat_page.h"
#include "ui/main/gear_page.h"
#include "ui/main/header_panel.h"
#include "ui/main/notes_page.h"
#include "ui/main/person_page.h"
#include "ui/main/window_place.h"
#include "ui/side/help_window.h"
#include "ui/side/info_window.h"
#include "ui/side/note_windows.h"
#include "ui/side/roller_window.h"
#include "ui/widgets/initiative_grid_view.h"
#include "ui/widgets/legend.h"
#include "ui/widgets/list_paint.h"
#include "ui/widgets/phase_label.h"
#include "ui/wiring/bind.h"
#include "ui/wiring/button_keys.h"
#include "ui/wiring/command_bars.h"
#include "ui/wiring/file_drop.h"

namespace ng {
namespace {

constexpr int kMargin = 8;
constexpr int kGap = 6;
constexpr int kLeftPane = 312;
constexpr int kLeastLeftPane = 226;
constexpr int kWidestLeftPane = 560;

void ShowText(QLabel& label, const QString& text) {
  if (label.text() != text) label.setText(text);
}

}  // namespace

MainWindow::MainWindow(Session& session) : session_(session) {
  setWindowTitle(QStringLiteral("NGtracker"));
  setObjectName(QStringLiteral("frmMain"));
  setMinimumSize(kLeastWindow);
  setContextMenuPolicy(Qt::NoContextMenu);
  const Perform perform = [this](const Act& act) { Do(act); };
  BuildMenus(*this, perform);
  BuildToolbar(*this);

  auto* splitter = new QSplitter(this);
  splitter->setHandleWidth(7);
  splitter->setChildrenCollapsible(false);
  BuildLeftPane(splitter);
  BuildRightPane(splitter);
  splitter->setStretchFactor(0, 0);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({kLeftPane, kLeastWindow.width()});
  setCentralWidget(splitter);
  BuildStatusBar();

  auto* toGrid = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  connect(toGrid, &QShortcut::activated, this,
          [this] { grid_->setFocus(Qt::ShortcutFocusReason); });
  FindLists();
  AddButtonKeys(*this);
  KeepEditingKeys(*this);
  new FileDrop(*this, perform);
  binder_ = std::make_unique<Binder>(*this, perform);
  PaintAll();
  Place();
  grid_->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::BuildLeftPane(QWidget* parent) {
  auto* pane = new QWidget(parent);
  pane->setMinimumWidth(kLeastLeftPane);
  pane->setMaximumWidth(kWidestLeftPane);
  phase_ = new PhaseLabel(pane);
  grid_ = new InitiativeGridView([this](const Act& act) { Do(act); }, pane);
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(kMargin, kMargin, 0, kGap);
  column->setSpacing(kGap);
  column->addWidget(phase_);
  column->addWidget(grid_, 1);
  column->addWidget(new Legend(pane));
}

void MainWindow::BuildRightPane(QWidget* parent) {
  auto* pane = new QWidget(parent);
  // The Tab key goes through the widgets in the order in which they are made.
  auto* header = new HeaderPanelView(pane);
  auto* tabs = new QTabWidget(pane);
  tabs->setObjectName(QStringLiteral("tabMain"));
  tabs->setDocumentMode(true);
  tabs->tabBar()->setDrawBase(false);
  auto* pages = tabs->findChild<QStackedWidget*>();
  tabs->addTab(new CombatPage(pages), "&1 Combat");
  tabs->addTab(new GearPage(pages), "&2 Gear");
  tabs->addTab(new PersonPage(pages), "&3 Person");
  tabs->addTab(new NotesPage(pages), "&4 Notes");
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(0, kMargin, kMargin, kGap);
  column->setSpacing(4);
  column->addWidget(header);
  column->addWidget(tabs, 1);
}

void MainWindow::BuildStatusBar() {
  statusBar()->setSizeGripEnabled(false);
  auto* message = new QLabel(this);
  message->setObjectName(QStringLiteral("lblStatus"));
  message->setContentsMargins(3, 0, 0, 0);
  statusBar()->addWidget(message, 1);
  auto* failure = new QToolButton(this);
  failure->setObjectName(QStringLiteral("lblLogFailure"));
  failure->setToolTip("Click to dismiss; the list in the Game Master window is complete");
  failure->setAutoRaise(true);
  failure->setProperty("tone", "alarm");
  // As high as the words beside it, so that nothing moves when it comes and goes.
  failure->setMaximumHeight(failure->fontMetrics().height());
  statusBar()->addPermanentWidget(failure);
  for (QLabel** label : {&combatants_, &combatTurn_, &pass_, &roller_}) {
    *label = new QLabel(this);
    (*label)->setContentsMargins(0, 0, 10, 0);
    statusBar()->addPermanentWidget(*label);
  }
}

void MainWindow::Place() {
  const WindowLayout& layout = session_.main.layout;
  const QScreen* screen = QGuiApplication::screenAt(KeptCentre(layout));
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  // The frame does not exist yet; its title bar must have room above the window.
  const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const QRect place =
      OpeningPlace(layout, screen->availableGeometry().adjusted(0, 0, 0, -titleBar));
  move(place.topLeft());
  resize(place.size());
}

void MainWindow::Do(const Act& act) {
  const int tests = session_.main.ngdr.TestsStarted();
  session_.Do(act);
  PaintAll();
  BringToFront(act);
  // The keys that roll the test mean something else in the main window.
  const bool started = session_.main.ngdr.TestsStarted() != tests;
  if (started && ngdr_ != nullptr && ngdr_->isVisible()) ngdr_->BringToFront();
  if (session_.main.closing) close();
}

/// A window that is asked for comes to the front, though it is open already.
void MainWindow::BringToFront(const Act& act) {
  const std::pair<std::string_view, SideWindow*> windows[] = {
      {"ShowRoller", ngdr_},        {"mnuViewGM", gameMaster_},       {"mnuViewLog", log_},
      {"frmGM.cmdViewLog", log_},   {"mnuViewReference", reference_}, {"mnuViewInfo", itemInfo_},
      {"cmdInfoWeapon", itemInfo_}, {"cmdInfoArmor", itemInfo_},      {"cmdInfoGear", itemInfo_},
      {"mnuHelpContents", help_}};
  for (const auto& [control, window] : windows) {
    if (act.control == control && window != nullptr && window->isVisible()) window->BringToFront();
  }
}

void MainWindow::PaintAll() {
  const MainForm& form = session_.main;
  PaintColours();
  binder_->Paint([&form](ControlVisitor& visitor) { VisitControls(form, visitor); });
  PaintMarks();
  grid_->SetShownRow(form.ShownRow());
  phase_->FitFont();
  PaintCounts();
  PaintSideWindows();
  if (statusBar()->isHidden() == form.statusBarVisible) {
    statusBar()->setVisible(form.statusBarVisible);
  }
}

/// Each window beside this one is made when it is first wanted, which keeps the start short; its
/// form is there from the start.
template <typename Window>
void MainWindow::PaintSideWindow(Window*& window, bool wanted) {
  if (wanted && window == nullptr) window = new Window([this](const Act& act) { Do(act); }, this);
  if (window != nullptr && (wanted || window->isVisible())) window->Paint(session_.main);
}

void MainWindow::PaintSideWindows() {
  const MainForm& form = session_.main;
  PaintSideWindow(ngdr_, form.ngdr.visible);
  PaintSideWindow(gameMaster_, form.frmGMOpen);
  PaintSideWindow(log_, form.logViewer.open);
  PaintSideWindow(reference_, form.reference.open);
  PaintSideWindow(itemInfo_, form.itemInfo.open);
  PaintSideWindow(help_, form.help.open);
}

void MainWindow::FindLists() {
  constexpr std::array<const char*, kSheetLists> kNames = {
      "lstWeapon", "lstArmor", "lstGear",     "lstActive",   "lstOther",
      "lstMagic",  "lstEdges", "lstAugments", "lstContacts", "lstRace"};
  std::ranges::transform(kNames, lists_.begin(), [this](const char* name) {
    return findChild<QTreeWidget*>(QString::fromLatin1(name));
  });
}

void MainWindow::PaintMarks() {
  for (std::size_t list = 0; list < kSheetLists; ++list) {
    ShowSelection(*lists_[list], session_.main.itemInfo.Marked(static_cast<SheetList>(list)));
  }
}

void MainWindow::PaintColours() {
  const Theme& wanted = session_.main.darkColours ? Theme::Dark() : Theme::Light();
  if (&wanted != &Theme::Current()) ApplyTheme(*qApp, wanted);
}

void MainWindow::PaintCounts() {
  const MainForm& form = session_.main;
  const int count = form.GridX.RowCount();
  ShowText(*combatants_, count == 1 ? "1 combatant" : QStringLiteral("%1 combatants").arg(count));
  ShowText(*combatTurn_, QStringLiteral("Combat turn %1").arg(form.fight.RoundCount.Value()));
  const int pass = form.fight.PhaseCnt.Value();
  ShowText(*pass_, pass > kLastPass ? "Turn over" : QStringLiteral("Pass %1").arg(pass));
  const bool off = static_cast<bool>(session_.environment.settings.DisableNGDR);
  ShowText(*roller_, off ? "Roller off" : "Roller on");
}

void MainWindow::KeepPlace(const QRect& place) {
  const WindowLayout layout = KeptLayout(place);
  session_.Do({"MainLeft", layout.MainLeft});
  session_.Do({"MainTop", layout.MainTop});
  session_.Do({"MainWidth", layout.MainWidth});
  session_.Do({"MainHeight", layout.MainHeight});
  session_.Do({"Form_Unload"});
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!session_.main.closing) {
    // Not by Do(), which would close the window once more and so skip the question.
    session_.Do({"mnuFileExit"});
    PaintAll();
  }
  if (!session_.main.closing) {
    event->ignore();
    return;
  }
  // The place that a maximised window goes back to has no frame round it.
  const QPoint frame = geometry().topLeft() - pos();
  const bool plain = !isMaximized() && !isFullScreen();
  KeepPlace(plain ? QRect(pos(), size())
                  : QRect(normalGeometry().topLeft() - frame, normalGeometry().size()));
  event->accept();
  // The other windows go with the main window.
  QCoreApplication::exit(0);
}

}  // namespace ng
