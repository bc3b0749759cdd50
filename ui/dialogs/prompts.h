#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>
#include <QWidget>
#include <functional>
#include <memory>
#include <utility>

#include "base/ports.h"
#include "ui/wiring/acts.h"

namespace ng {

class Session;

/// The real questions and messages: modal windows of the toolkit.
class QtPrompts : public Prompts {
 public:
  /// The session whose forms the modal dialogs show, and the door that their acts go through.
  void Attach(const Session& session, Perform door) {
    session_ = &session;
    door_ = std::move(door);
  }
  /// The window that the dialogs open in front of, and what it does to show how far a command has
  /// come when the command asks something in between.
  void SetMainWindow(QWidget& window, std::function<void()> paint);

  void Message(std::string_view text) override;
  std::string Input(std::string_view prompt) override;
  void Beep() override;
  std::optional<std::string> OpenFile(const FileDialog& dialog) override;
  std::optional<std::string> SaveFile(const FileDialog& dialog) override;
  SaveChoice AskToSave(std::string_view question) override;
  bool AskToTakeUp(std::string_view question) override;
  void ShowModal(ModalForm form) override;
  /// Shows the dialog only for work that takes longer than a quarter of a second.
  void ShowProgress(std::string_view what, int done, int total) override;

 private:
  QWidget* Parent() const;
  void PaintMainWindow() const;

  const Session* session_ = nullptr;
  Perform door_;
  QPointer<QWidget> mainWindow_;
  std::function<void()> paint_;
  QElapsedTimer workTime_;
  std::unique_ptr<QProgressDialog> progress_;
};

}  // namespace ng
