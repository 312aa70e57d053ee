#include "ui/controls/FollowedFiles.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QThread>
#include <QTimer>

#include "books/store/FileState.h"
#include "ui/controls/Guard.h"
#include "ui/controls/LongWork.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kNextLook = 30;  // milliseconds

QString NewerText() {
  return u"Файл тем временем изменён другой программой или в другом окне. "
         u"<a href=\"read\">Прочитать заново</a>: то, что здесь не сохранено, пропадёт."_s;
}

}  // namespace

FollowedFiles::FollowedFiles(QWidget* window, Ways ways)
    : QObject(window), window_(window), ways_(std::move(ways)), note_(new QLabel(window)) {
  note_->setObjectName(u"stale_note"_s);
  note_->setTextFormat(Qt::RichText);
  note_->setWordWrap(true);
  look::MakeWarning(note_);
  note_->hide();
  if (auto* layout = qobject_cast<QBoxLayout*>(window->layout())) layout->addWidget(note_);
  connect(note_, &QLabel::linkActivated, this, &FollowedFiles::ReadAgain);
  window->installEventFilter(this);
}

bool FollowedFiles::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Show) loop_level_ = QThread::currentThread()->loopLevel();
  if (event->type() == QEvent::WindowActivate) LookSoon();
  return false;
}

// Not at once: a dialog gives the keyboard back before the command that opened it has gone on.
void FollowedFiles::LookSoon() {
  if (look_waits_) return;
  look_waits_ = true;
  QTimer::singleShot(0, this, &FollowedFiles::Look);
}

// A dialog that is executed runs in a loop of its own; whatever runs in another one above that
// belongs to a command, which knows its rows by their places.
bool FollowedFiles::IsInCommand() const {
  const int own = loop_level_ + (window_->isModal() ? 1 : 0);
  return QThread::currentThread()->loopLevel() > own || LongWork::IsRunning();
}

void FollowedFiles::Look() {
  look_waits_ = false;
  if (!window_->isVisible()) return;
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr && modal != window_->window()) return;  // it gives the keyboard back
  if (IsInCommand()) {
    look_waits_ = true;
    QTimer::singleShot(kNextLook, this, &FollowedFiles::Look);
    return;
  }
  const bool current = ways_.is_current();
  const bool keeps_work = !current && ways_.is_changed && ways_.is_changed();
  note_->hide();
  if (keeps_work) TellAtFoot(NewerText());
  if (current || keeps_work) return;
  // A message that goes away gives the keyboard back, and the look comes again: no message here.
  try {
    ways_.read_again();
  } catch (const std::exception& error) {
    TellAtFoot(ErrorText(error).toHtmlEscaped());
  }
}

void FollowedFiles::TellAtFoot(const QString& text) {
  note_->setText(text);
  note_->show();
}

void FollowedFiles::ReadAgain() {
  if (Guarded(window_, ways_.read_again)) note_->hide();
}

bool FollowedFiles::Save(const std::function<void()>& save) {
  bool read_again = false;
  const bool saved = Guarded(window_, [&] {
    try {
      save();
    } catch (const StaleFile& error) {
      const bool loses = ways_.is_changed && ways_.is_changed();
      read_again = AskYesNo(window_, ErrorText(error) + u"\n\nПрочитать файл заново?"_s,
                            kAttention.toString(), DefaultAnswer::kYes,
                            loses ? u"То, что здесь не сохранено, пропадёт."_s : QString());
      throw WorkCancelled();
    }
  });
  if (read_again) ReadAgain();
  if (saved) note_->hide();
  return saved;
}

}  // namespace kladez
