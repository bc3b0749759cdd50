#pragma once

#include <QDialog>
#include <memory>

#include "ui/wiring/acts.h"

namespace ng {

class Binder;
class Session;
struct FormWindow;

/// A modal window that follows a form: painted from it after every act, and closed when the form
/// is. Closing it by its frame is an act, too.
class FormDialog : public QDialog {
  Q_OBJECT

 public:
  /// `name` is that of its row in the table of windows.
  FormDialog(const char* name, const QString& title, const Session& session, Perform door,
             QWidget* parent);
  ~FormDialog() override;

  void reject() override;

 protected:
  /// Does the act, paints what came of it, and closes the dialog when the form is closed.
  void Do(const Act& act);
  /// For an act that is one of several: nothing is painted yet.
  void Send(const Act& act) const { door_(act); }
  /// The dialog must hold all its widgets by the first call.
  void Paint();
  /// What changes now is painted and not done by the user.
  bool Painting() const;
  const Session& Forms() const { return session_; }

 private:
  const FormWindow& window_;
  const Session& session_;
  Perform door_;
  std::unique_ptr<Binder> binder_;
};

}  // namespace ng
