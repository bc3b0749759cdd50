#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeWidget>

#include "gui/gui_program.h"
#include "ui/widgets/damage_bar.h"

namespace ng {

/// A fight from the import to the restored state file, in the real windows.
class WholeFightTest : public GuiTest {
  Q_OBJECT

 private:
  const QTemporaryDir directory_;

  void ClickLine(const char* list, const char* text) const {
    auto& tree = program_->Find<QTreeWidget>(list);
    const auto lines = tree.findItems(QString::fromLatin1(text), Qt::MatchExactly);
    QCOMPARE(lines.size(), 1);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(lines[0]).center());
  }
  void Type(const char* box, const QString& text) const {
    program_->Click(box);
    QTest::keyClicks(QApplication::focusWidget(), text);
  }
  /// Answers the file dialog that the key opens.
  void AnswerFileDialog(Qt::Key key, const QString& path) const {
    InNextDialog([&path](QDialog& dialog) {
      auto& name = *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      name.setFocus();
      name.selectAll();
      QTest::keyClicks(&name, path);
      auto& buttons = *dialog.findChild<QDialogButtonBox*>();
      for (auto* button : buttons.buttons()) {
        if (buttons.buttonRole(button) != QDialogButtonBox::AcceptRole) continue;
        QTRY_VERIFY(button->isEnabled());
        QTest::mouseClick(button, Qt::LeftButton);
        return;
      }
    });
    program_->Key(key, Qt::ControlModifier);
    TakeKeys(*program_->window);
  }
  /// The rows of the grid in alphabetical order, since ties may stand in another one.
  QStringList Rows() const {
    QStringList rows;
    for (int row = 1; row <= program_->Rows(); ++row) {
      rows += program_->Cell(row, 0) + " " + program_->Cell(row, 1) + " " + program_->Cell(row, 2);
    }
    rows.sort();
    return rows;
  }
  static void TakeKeys(QWidget& window) {
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
  }
  QString Note() const { return program_->Find<QPlainTextEdit>("txtNotes").toPlainText(); }

  void ShootAsVex() const;
  void WoundAndWrite() const;
  void Restart(const QString& path);

 private slots:
  void SurvivesARestart();
};

void WholeFightTest::ShootAsVex() const {
  // With such a roll Vex acts before everybody else.
  program_->ClickCell(program_->RowOf(QStringLiteral("Vex")), 1);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("40"));
  program_->Key(Qt::Key_T, Qt::ControlModifier);
  program_->Key(Qt::Key_F8);
  QCOMPARE(program_->GreenName(), QStringLiteral("Vex"));
  const QAbstractItemModel& rows = *program_->Find<QTableView>("GridX").model();
  QCOMPARE(rows.index(0, 0).data(Qt::AccessibleTextRole).toString(),
           QStringLiteral("Vex, On turn"));
  program_->OpenPage(1);
  ClickLine("lstWeapon", "Harrow 12 (SMG)");
  program_->Click("cmdSetPrim");
  program_->OpenPage(0);
  ClickLine("lstActive", "Submachine Guns");
  InNextDialog([](QDialog& dialog) {
    QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("cmdSkillSelect_1")),
                      Qt::LeftButton);
  });
  program_->Click("cmdSkillPrimary");
  program_->Click("cmdShots3_0");
  QWidget& roller = *program_->Find("cmdRoll").window();
  TakeKeys(roller);
  // Three rounds kick by three.
  QCOMPARE(program_->Text("txtTargetNum"), QStringLiteral("7"));
  program_->Click("cmdCPplusMinus_0");
  QCOMPARE(program_->Text("txtNumDice"), QStringLiteral("8"));
  program_->Click("cmdRoll");
  QCOMPARE(program_->Find<QPlainTextEdit>("txtResult").toPlainText().trimmed().split(' ').size(),
           8);
  QCOMPARE(program_->Text("txtCP"), QStringLiteral("5"));
  program_->Key(Qt::Key_Escape);
  QTRY_VERIFY(!roller.isVisible());
  TakeKeys(*program_->window);
}

void WholeFightTest::WoundAndWrite() const {
  program_->Display(QStringLiteral("Sable"));
  program_->Key(Qt::Key_I, Qt::ControlModifier);
  program_->Display(QStringLiteral("Ganger"));
  program_->Key(Qt::Key_2, Qt::ControlModifier);
  program_->Display(QStringLiteral("Brand"));
  program_->OpenPage(3);
  Type("txtNotes", QStringLiteral("Owes_Vex"));
  program_->Key(Qt::Key_Return);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("forty"));
  Type("txtNoteFileName", QStringLiteral("C:\\tracker\\brand.txt"));
  program_->Click("cmdNoteSave");
}

void WholeFightTest::Restart(const QString& path) {
  // The dialog goes by the files of this machine; the program's own stand in memory.
  QVERIFY(QFile(path).open(QIODevice::WriteOnly));
  // Closing ends the event loop, as it ends the program.
  QTimer::singleShot(0, this, [this] { program_->Key(Qt::Key_Q, Qt::ControlModifier); });
  QApplication::exec();
  QVERIFY(!program_->window->isVisible());
  FakeFiles disk = std::move(program_->files);
  program_.reset();
  program_ = std::make_unique<GuiProgram>();
  program_->files = std::move(disk);
  program_->Start();
}

void WholeFightTest::SurvivesARestart() {
  const QString path = QStringLiteral("fight.ngt");
  QVERIFY(QDir::setCurrent(directory_.path()));
  program_ = std::make_unique<GuiProgram>();
  StartFight();
  program_->Key(Qt::Key_R, Qt::ControlModifier);
  ShootAsVex();
  if (QTest::currentTestFailed()) return;
  WoundAndWrite();
  const QStringList rows = Rows();
  QVERIFY(rows.contains(QStringLiteral("Sable 0 ")) && rows.contains(QStringLiteral("Vex 40 ")));
  AnswerFileDialog(Qt::Key_S, path);

  Restart(path);
  if (QTest::currentTestFailed()) return;
  QCOMPARE(program_->Rows(), 0);
  AnswerFileDialog(Qt::Key_L, path);
  QCOMPARE(Rows(), rows);
  QCOMPARE(program_->Text("lblPhase"), QStringLiteral("Beginning of turn: Phase 0"));
  QCOMPARE(program_->GreenName(), QString());

  program_->Display(QStringLiteral("Vex"));
  QCOMPARE(program_->Text("lblPrimary"), QStringLiteral("Harrow 12 (SMG)"));
  QCOMPARE(program_->Text("lblSkillPrimaryLevel"), QStringLiteral("7"));
  QCOMPARE(program_->Text("lblLeft_0"), QStringLiteral("29"));
  // The turn begins anew, with full pools and no recoil.
  QCOMPARE(program_->Text("txtTBTT_0"), QStringLiteral("0"));
  QCOMPARE(program_->Text("txtCP"), QStringLiteral("6"));
  program_->Display(QStringLiteral("Ganger"));
  QCOMPARE(program_->Find<DamageBar>("arPBDamage_0").boxes(), 3);
  QCOMPARE(program_->Text("lblDamMod"), QStringLiteral("DamMod:+2"));
  program_->Display(QStringLiteral("Brand"));
  QCOMPARE(Note(), QStringLiteral("Owes Vex\nforty"));
  // Who was out of the fight is back in it.
  program_->Display(QStringLiteral("Sable"));
  QVERIFY(!program_->Find<QToolButton>("Disable").isChecked());
}

}  // namespace ng

int main(int argc, char** argv) { return ng::RunGuiTest<ng::WholeFightTest>(argc, argv); }
#include "whole_fight_test.moc"
