#include "ui/dialogs/input_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/wiring/code_page_input.h"

namespace ng {

InputDialog::InputDialog(const QString& title, const QString& prompt, const Perform& perform,
                         QWidget* parent)
    : QDialog(parent), answer_(new QLineEdit(this)) {
  setWindowTitle(title);
  setMinimumWidth(380);
  auto* label = new QLabel(this);
  label->setTextFormat(Qt::PlainText);
  QString shown = prompt;
  label->setText(shown.replace(QLatin1String("\r\n"), QLatin1String("\n")));
  answer_->setObjectName(QStringLiteral("txtInput"));
  answer_->setAccessibleName(prompt);
  KeepToCodePage(*answer_, perform);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  for (QAbstractButton* button : buttons->buttons()) button->setIcon({});
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 14, 16, 12);
  column->setSpacing(8);
  column->addWidget(label);
  column->addWidget(answer_);
  column->addWidget(buttons);
  answer_->setFocus();
}

QString InputDialog::Answer() const { return answer_->text(); }

}  // namespace ng
