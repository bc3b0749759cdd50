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
#include <utility>

#include "app/controls.h"
#include "app/form_windows.h"
#include "app/session.h"
#include "ui/look/theme.h"
#include "ui/main/combat_page.h"
#include "ui/main/gear_page.h"
#include "ui/main/header_panel.h"
#include "ui/main/notes_page.h"
#include "ui/main/person_page.h"
#include "ui/main/window_place.h"
#include "ui/side/help_window.h"
#include "ui/side/history_window.h"
#include "ui/side/info_window.h"
#include "ui/side/note_windows.h"
#include "ui/side/roller_window.h"
#include "ui/widgets/initiative_grid_view.h"
#include "ui/widgets/legend.h"
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

template <typename Window>
SideWindow* Make(const Perform& perform, QWidget* parent) {
  return new Window(perform, parent);
}

}  // namespace

MainWindow::MainWindow(const Session& session, Perform door)
    : session_(session), door_(std::move(door)), sides_{{"ngdr", Make<RollerWindow>},
                                                        {"frmGM", Make<GmWindow>},
                                                        {"frmDisplay", Make<LogWindow>},
                                                        {"frmReference", Make<ReferenceWindow>},
                                                        {"frmInfo", Make<InfoWindow>},
                                                        {"frmHelp", Make<HelpWindow>},
                                                        {"frmHistory", Make<HistoryWindow>}} {
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
  ConnectLists();
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
  grid_ = new InitiativeGridView([this](const Act& act) { Do(act); }, pane);
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(kMargin, kMargin, 0, kGap);
  column->setSpacing(kGap);
  column->addWidget(new PhaseLabel(pane));
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
  statusBar()->setObjectName(QStringLiteral("statusBar"));
  statusBar()->setSizeGripEnabled(false);
  auto* message = new QLabel(this);
  message->setObjectName(QStringLiteral("lblStatus"));
  message->setContentsMargins(3, 0, 0, 0);
  statusBar()->addWidget(message, 1);
  AddNotice("lblLogFailure", "Click to dismiss; the list in the Game Master window is complete");
  AddNotice("lblJournal", "Click to dismiss");
  for (const char* name : {"lblCombatants", "lblCombatTurn", "lblPass", "lblRoller"}) {
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setContentsMargins(0, 0, 10, 0);
    statusBar()->addPermanentWidget(label);
  }
}

void MainWindow::AddNotice(const char* name, const char* tip) {
  auto* notice = new QToolButton(this);
  notice->setObjectName(QString::fromLatin1(name));
  notice->setToolTip(QString::fromLatin1(tip));
  notice->setAutoRaise(true);
  notice->setProperty("tone", "alarm");
  notice->setProperty("hidesEmpty", true);
  // As high as the words beside it, so that nothing moves when it comes and goes.
  notice->setMaximumHeight(notice->fontMetrics().height());
  statusBar()->addPermanentWidget(notice);
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

/// Enter and a double click on a line of a list ask what is known of it.
void MainWindow::ConnectLists() {
  for (QTreeWidget* list : findChildren<QTreeWidget*>()) {
    connect(list, &QTreeWidget::itemActivated, this, [this, list](QTreeWidgetItem* item) {
      Do({list->objectName().toStdString() + "_Select", list->indexOfTopLevelItem(item), {}});
      Do({"mnuViewInfo"});
    });
  }
}

void MainWindow::Do(const Act& act) {
  const int tests = session_.main.ngdr.TestsStarted();
  door_(act);
  PaintAll();
  BringToFront(act);
  // The keys that roll the test mean something else in the main window.
  const bool started = session_.main.ngdr.TestsStarted() != tests;
  SideWindow* roller = FindSideWindow("ngdr");
  if (started && roller != nullptr && roller->isVisible()) roller->BringToFront();
  if (session_.main.closing) close();
}

SideWindow* MainWindow::FindSideWindow(std::string_view name) const {
  return std::ranges::find(sides_, name,
                           [](const Side& side) { return std::string_view(side.name); })
      ->window;
}

/// A window that is asked for comes to the front, though it is open already.
void MainWindow::BringToFront(const Act& act) const {
  static constexpr std::pair<std::string_view, std::string_view> kAsking[] = {
      {"ShowRoller", "ngdr"},
      {"mnuViewGM", "frmGM"},
      {"mnuViewLog", "frmDisplay"},
      {"frmGM.cmdViewLog", "frmDisplay"},
      {"mnuViewReference", "frmReference"},
      {"mnuViewInfo", "frmInfo"},
      {"mnuViewHistory", "frmHistory"},
      {"cmdInfoWeapon", "frmInfo"},
      {"cmdInfoArmor", "frmInfo"},
      {"cmdInfoGear", "frmInfo"},
      {"mnuHelpContents", "frmHelp"}};
  for (const auto& [control, name] : kAsking) {
    if (act.control != control) continue;
    SideWindow* window = FindSideWindow(name);
    if (window != nullptr && window->isVisible()) window->BringToFront();
  }
}

void MainWindow::PaintAll() {
  PaintColours();
  binder_->Paint([this](ControlVisitor& visitor) { VisitControls(session_, visitor); });
  PaintSideWindows();
}

void MainWindow::PaintSideWindows() {
  const Perform perform = [this](const Act& act) { Do(act); };
  for (Side& side : sides_) {
    if (side.window == nullptr && FindFormWindow(side.name).open(session_)) {
      side.window = side.make(perform, this);
    }
    if (side.window != nullptr) side.window->Paint(session_);
  }
}

void MainWindow::PaintColours() const {
  const Theme& wanted = session_.main.darkColours ? Theme::Dark() : Theme::Light();
  if (&wanted != &Theme::Current()) ApplyTheme(*qApp, wanted);
}

void MainWindow::KeepPlace(const QRect& place) {
  const WindowLayout layout = KeptLayout(place);
  door_({"MainLeft", layout.MainLeft});
  door_({"MainTop", layout.MainTop});
  door_({"MainWidth", layout.MainWidth});
  door_({"MainHeight", layout.MainHeight});
  door_({"Form_Unload"});
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!session_.main.closing) {
    // Not by Do(), which would close the window once more and so skip the question.
    door_({"mnuFileExit"});
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
