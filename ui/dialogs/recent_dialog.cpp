#include "ui/dialogs/recent_dialog.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include "ui/look/layout_kit.h"

namespace ng {
namespace {

constexpr QSize kSize(640, 380);

}  // namespace

RecentDialog::RecentDialog(const Session& session, const Perform& door, QWidget* parent)
    : FormDialog("frmRecent", "Recent Fights", session, door, parent) {
  resize(kSize);
  auto* fights = MakeList({QStringLiteral("lstFights"), "Recent fights",
                           "Fights of this and earlier sessions, newest first"},
                          {{"When", 140},
                           {"Combatants", 90, Qt::AlignRight},
                           {"Combat turn", 90, Qt::AlignRight},
                           {"State file"},
                           {"", 110}},
                          this);
  auto* told = new QLabel(this);
  told->setObjectName(QStringLiteral("lblFight"));
  told->setWordWrap(true);
  told->setMinimumHeight(2 * told->fontMetrics().lineSpacing());
  told->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  auto* takeUp = MakeButton({QStringLiteral("cmdTakeUp"), "Take up",
                             "Close the fight in the window and take up the selected one"},
                            "&Take up", this);
  takeUp->setDefault(true);
  auto* cancel =
      MakeButton({QStringLiteral("cmdCancel"), "Cancel", "Close without a choice"}, "Cancel", this);
  connect(fights, &QTreeWidget::itemActivated, this, [this] { Do({"frmRecent.cmdTakeUp"}); });
  auto* buttons = MakeRow(kGroupGap);
  buttons->addStretch(1);
  buttons->addWidget(takeUp);
  buttons->addWidget(cancel);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(12, 12, 12, 12);
  column->setSpacing(kGroupGap);
  column->addWidget(fights, 1);
  column->addWidget(told);
  column->addLayout(buttons);
  Paint();
  fights->setFocus();
}

}  // namespace ng
