// Work that may take long, such as reading all documents of years. It stays in the thread of the
// screens; while it runs the user sees how far it is and can end it:
//
//   LongWork work(this, u"Составляется отчет..."_s);
//   const auto report = CollectSales(data, session, scope, work.Told());
//
// Nothing is shown before a moment has passed, so that short work does not flicker. The window with
// the bar takes all keys and clicks but those on links and menus that lead elsewhere. A window that
// is closed meanwhile ends the work and closes as soon as the work is over, and so does every
// command that would take the screen away under the work: it waits in LeaveFor.
#pragma once

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>

#include "formats/Progress.h"

class QDialog;
class QProgressBar;

namespace kladez {

class LongWork : public QObject {
  Q_OBJECT

 public:
  // `doing` stands above the bar.
  LongWork(QWidget* parent, const QString& doing);
  ~LongWork() override;

  // What the work tells now and then. Valid as long as this object.
  Progress Told();

  // A command that would take away what work stands on begins with this: where some work is
  // running, it is cancelled, `command` comes as soon as it is over, and true is the answer. Of two
  // commands the later comes. Nothing comes once `context` is gone.
  static bool LeaveFor(QObject* context, const std::function<void()>& command);
  // Whether any work is running now.
  static bool IsRunning();
  // A panel or menu whose clicks pass the bar, as each of them begins with LeaveFor.
  static void LetPass(QWidget* way_out);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Advance(double part);
  void ShowBar();
  bool BelongsToBar(QObject* object) const;
  // Whether input of the user is for a panel or menu that leads elsewhere.
  static bool LeadsElsewhere(QObject* object, const QEvent* event);
  // Whether the window is behind the bar, and not some tip or menu.
  bool StandsOn(const QWidget* window) const;

  QPointer<QWidget> parent_;
  const QString doing_;
  QElapsedTimer since_start_;
  QDeadlineTimer next_look_;  // at what the user does meanwhile
  std::unique_ptr<QDialog> bar_window_;
  QProgressBar* bar_ = nullptr;
  QPointer<QWidget> to_close_;
  QPointer<QObject> next_context_;
  std::function<void()> next_;  // comes once the work is over
  bool ended_ = false;          // by the user
};

}  // namespace kladez
