// Work that may take long, such as reading all documents of years. It stays in the thread of the
// screens; while it runs the user sees how far it is and can end it:
//
//   LongWork work(this, u"Составляется отчет..."_s);
//   const auto report = CollectSales(data, session, scope, work.Callback());
//
// Nothing is shown before half a second has passed, so that short work does not flicker. The
// window with the bar takes all keys and clicks; a window that is closed meanwhile ends the work
// and closes as soon as the work is over.
#pragma once

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>

class QDialog;
class QProgressBar;

namespace kladez {

class LongWork : public QObject {
  Q_OBJECT

 public:
  // `doing` stands above the bar.
  LongWork(QWidget* parent, const QString& doing);
  ~LongWork() override;

  // What the work calls now and then: takes how much is done, 0 to 1, and answers whether it is to
  // go on. Valid as long as this object.
  std::function<bool(double part)> Callback();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Advance(double part);
  void ShowBar();
  bool BelongsToBar(QObject* object) const;
  // Whether the window is behind the bar, and not some tip or menu.
  bool StandsOn(const QWidget* window) const;

  QWidget* parent_;
  const QString doing_;
  QElapsedTimer since_start_;
  QDeadlineTimer next_look_;  // at what the user does meanwhile
  std::unique_ptr<QDialog> bar_window_;
  QProgressBar* bar_ = nullptr;
  QPointer<QWidget> to_close_;
  bool ended_ = false;  // by the user
};

}  // namespace kladez
