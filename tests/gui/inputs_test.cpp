#include <QClipboard>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>
#include <QToolTip>

#include "gui/gui_program.h"

namespace ng {

/// What is typed and pasted, and what the windows say of it.
class InputsTest : public GuiTest {
  Q_OBJECT

 private:
  static void Type(QWidget& widget, const QString& character) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, character);
    QApplication::sendEvent(&widget, &press);
  }
  void Paste(const QString& text) const {
    QApplication::clipboard()->setText(text);
    program_->Key(Qt::Key_V, Qt::ControlModifier);
  }

 private slots:
  void init() { program_ = std::make_unique<GuiProgram>(); }
  void cleanup() { program_.reset(); }

  void ForeignCharactersAreLeftOut();
  void TheCursorStaysWhereThePaintingChangesAPart();
  void TheGridsCellComesIntoSightWithTheFirstKey();
  void TheTooltipFollowsTheRows();
  void AFailedLogIsShownUntilItIsClicked();
  void TipsBeginWithTheCommandsNames();
  void AMissingCharacterDirectoryStaysUntilOneIsChosen();
  void OptionsSayWhenTheyTakeEffect();
};

void InputsTest::ForeignCharactersAreLeftOut() {
  StartFight();
  program_->Display(QStringLiteral("Vex"));
  program_->OpenPage(3);
  const QString told = QStringLiteral("Left out: ");
  auto& note = program_->Find<QPlainTextEdit>("txtNotes");
  program_->Click("txtNotes");
  QTest::keyClicks(&note, QStringLiteral("ad"));
  program_->Key(Qt::Key_Left);
  Paste(QString::fromUtf8("b\u0141\U0001F3B2c\u00e9"));
  QCOMPARE(note.toPlainText(), QString::fromUtf8("abc\u00e9d"));
  QTRY_VERIFY(program_->Text("lblStatus").startsWith(told));
  Type(note, QString::fromUtf8("\u0142"));
  Type(note, QStringLiteral("!"));
  QCOMPARE(note.toPlainText(), QString::fromUtf8("abc\u00e9!d"));
  QCOMPARE(program_->fight.Players[program_->fight.CurrentPCpointer].Notes, "abc\xe9!d");
  // The character does not come back with what is taken back.
  while (note.document()->isUndoAvailable()) program_->Key(Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(note.toPlainText(), QString());
  program_->Key(Qt::Key_Y, Qt::ControlModifier);
  QCOMPARE(note.toPlainText(), QStringLiteral("ad"));

  for (const char* name : {"txtNoteFileName", "txtRRSLT"}) {
    auto& box = program_->Find<QLineEdit>(name);
    QTest::mouseClick(&box, Qt::LeftButton);
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("14"));
    program_->Key(Qt::Key_Left);
    program_->window->Do({"mnuTClear"});
    QVERIFY(!program_->Text("lblStatus").startsWith(told));
    Paste(QString::fromUtf8("2\u01413"));
    QCOMPARE(box.text(), QStringLiteral("1234"));
    QCOMPARE(box.cursorPosition(), 3);
    QTRY_VERIFY(program_->Text("lblStatus").startsWith(told));
  }

  program_->ClickCell(1, 1);
  const QString before = program_->Cell(1, 1);
  Type(program_->Find("GridX"), QString::fromUtf8("\u0141"));
  QCOMPARE(program_->Cell(1, 1), before);

  InNextDialog([](QDialog& dialog) {
    auto& answer = *dialog.findChild<QLineEdit*>();
    Type(answer, QString::fromUtf8("\u0141"));
    Type(answer, QStringLiteral("7"));
    QCOMPARE(answer.text(), QStringLiteral("7"));
    dialog.reject();
  });
  program_->window->Do({"frmGM.cmdAddNote"});
}

void InputsTest::TheCursorStaysWhereThePaintingChangesAPart() {
  StartFight();
  program_->Display(QStringLiteral("Vex"));
  program_->OpenPage(3);
  auto& note = program_->Find<QPlainTextEdit>("txtNotes");
  program_->Click("txtNotes");
  program_->window->Do({"txtNotes", 0, "owes 5 to Brand"});
  QTextCursor cursor = note.textCursor();
  cursor.setPosition(10);
  note.setTextCursor(cursor);
  program_->window->Do({"txtNotes", 0, "owes 500 to Brand"});
  QCOMPARE(note.toPlainText(), QStringLiteral("owes 500 to Brand"));
  QCOMPARE(note.textCursor().position(), 12);
  // The text has no steps of its own, so that the fight's is taken back, and brought again.
  program_->Key(Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(note.toPlainText(), QString());
  QVERIFY(
      program_->Find<QAction>("mnuEditRedo").text().startsWith(QStringLiteral("&Redo: Vex, note")));
  program_->Key(Qt::Key_Y, Qt::ControlModifier);
  QCOMPARE(note.toPlainText(), QStringLiteral("owes 500 to Brand"));
  // The widget gives a hard blank back as a plain one, and must not be set again for it.
  program_->window->Do({"txtNotes", 0,
                        "owes\xa0"
                        "500 to Brand"});
  const QSignalSpy changes(&note, &QPlainTextEdit::textChanged);
  program_->window->Do({"mnuTClear"});
  QCOMPARE(changes.count(), 0);

  // With nobody displayed the box is painted back, and the cursor is where it was.
  program_->window->Do({"mnuFileNew"});
  program_->OpenPage(0);
  auto& box = program_->Find<QLineEdit>("txtTBTT_0");
  box.setFocus();
  box.setCursorPosition(0);
  QTest::keyClick(&box, Qt::Key_9);
  QCOMPARE(box.text(), QStringLiteral("0"));
  QCOMPARE(box.cursorPosition(), 0);
}

void InputsTest::TheGridsCellComesIntoSightWithTheFirstKey() {
  StartFight();
  program_->window->resize(1024, 700);
  InNextDialog([](QDialog& dialog) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>(), QStringLiteral("21"));
    dialog.accept();
  });
  program_->window->Do({"mnuPMult"});
  program_->window->activateWindow();
  QTRY_COMPARE(QApplication::activeWindow(), program_->window.get());
  auto& grid = program_->Find<QTableView>("GridX");
  QTRY_VERIFY(grid.verticalScrollBar()->maximum() > 0);
  program_->ClickCell(1, 1);
  const QString before = program_->Cell(1, 1);
  const auto cell = [&grid] { return grid.visualRect(grid.currentIndex()); };
  const auto inSight = [&] { return grid.viewport()->rect().contains(cell()); };
  grid.verticalScrollBar()->setValue(grid.verticalScrollBar()->maximum());
  QVERIFY(!inSight());
  program_->Key(Qt::Key_7);
  QVERIFY(inSight());
  QCOMPARE(program_->Cell(1, 1), QStringLiteral("7"));
  program_->Key(Qt::Key_Escape);
  QCOMPARE(program_->Cell(1, 1), before);
  QCOMPARE(QApplication::focusWidget(), &grid);

  // A sort takes the cell along and leaves the sight where it is.
  program_->Key(Qt::Key_9);
  program_->Key(Qt::Key_9);
  program_->ClickCell(2, 1);
  program_->window->Do({"cmdDDam", 0});
  const int row = program_->RowOf(program_->Text("lblName2"));
  QVERIFY(row > 20);
  QCOMPARE(grid.currentIndex().row(), row - 1);
}

void InputsTest::TheTooltipFollowsTheRows() {
  StartFight();
  auto& grid = program_->Find<QTableView>("GridX");
  QWidget& rows = *grid.viewport();
  program_->Key(Qt::Key_R, Qt::ControlModifier);
  program_->ClickCell(1, 0);
  const QPoint first = grid.visualRect(grid.model()->index(0, 0)).center();
  QTest::mouseMove(&rows, first);
  QTRY_VERIFY(rows.underMouse());
  QHelpEvent help(QEvent::ToolTip, first, rows.mapToGlobal(first));
  QApplication::sendEvent(&rows, &help);
  QCOMPARE(QToolTip::text(), program_->Cell(1, 0));
  const QString before = program_->Cell(1, 0);
  program_->window->Do({"cmdDDam", 0});
  QVERIFY(program_->Cell(1, 0) != before);
  QCOMPARE(QToolTip::text(), program_->Cell(1, 0));
}

void InputsTest::AFailedLogIsShownUntilItIsClicked() {
  StartFight();
  auto& failure = program_->Find<QToolButton>("lblLogFailure");
  QVERIFY(!failure.isVisible());
  const int height = program_->Find("lblStatus").height();
  program_->files.failingWrite = 1;
  program_->Click("cmdShotsZ_0");
  program_->Key(Qt::Key_R, Qt::ControlModifier);
  QVERIFY(failure.isVisible());
  QCOMPARE(failure.text(), QStringLiteral("Log not written: Disk full"));
  QCoreApplication::processEvents();
  QCOMPARE(program_->Find("lblStatus").height(), height);
  program_->Click("lblLogFailure");
  QVERIFY(!failure.isVisible());
}

void InputsTest::TipsBeginWithTheCommandsNames() {
  Start();
  const std::pair<const char*, const char*> tips[] = {
      {"Delay", "Toggle Delay"},
      {"Disable", "Toggle Active/Inactive"},
      {"Multiply", "Multiply character (NPC)"},
      {"Delete", "Delete Character"},
      {"Reset", "Reset to top"},
      {"optInitMode_0", "Physical = Augmented Initiative (D6) + Augmented Reaction"},
      {"optInitMode_1", "Astral = Natural Initiative (D6) + Natural Reaction + 20"}};
  for (const auto& [name, first] : tips) {
    QCOMPARE(program_->Find(name).toolTip().section(QLatin1Char('\n'), 0, 0),
             QString::fromLatin1(first));
  }
}

void InputsTest::AMissingCharacterDirectoryStaysUntilOneIsChosen() {
  Start();
  std::string& directory = program_->session.environment.settings.NG3Dir;
  directory = "Q:\\unplugged";
  InNextDialog([](QDialog& dialog) {
    QCoreApplication::processEvents();
    dialog.reject();
  });
  program_->Key(Qt::Key_O, Qt::ControlModifier);
  QCOMPARE(directory, std::string("Q:\\unplugged"));
}

void InputsTest::OptionsSayWhenTheyTakeEffect() {
  const auto says = [](QDialog& dialog, const char* words) {
    for (const auto* label : dialog.findChildren<QLabel*>()) {
      if (label->text().contains(QLatin1String(words))) return true;
    }
    return false;
  };
  constexpr const char* kElsewhere = "when the program is started without a settings file";
  InNextDialog([&](QDialog& dialog) {
    QVERIFY(says(dialog, "The other settings take effect now"));
    QVERIFY(!says(dialog, kElsewhere));
    dialog.reject();
  });
  program_->InstallTables();
  program_->Start();
  program_->session.environment.location.commandLine = "D:\\given.ini";
  InNextDialog([&](QDialog& dialog) {
    QVERIFY(says(dialog, kElsewhere));
    dialog.reject();
  });
  program_->window->Do({"mnuViewOptions"});
}

}  // namespace ng

int main(int argc, char** argv) { return ng::RunGuiTest<ng::InputsTest>(argc, argv); }
#include "inputs_test.moc"
