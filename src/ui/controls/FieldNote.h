// The short note under a field: why its text cannot be taken, or what of a key or paste was left
// out. It lies over the window and takes no room in it; assistive tools are told its words.
#pragma once

#include <QLabel>

namespace kladez {

class FieldNote : public QLabel {
  Q_OBJECT

 public:
  enum class Stays { kUntilTakenBack, kForAMoment };

  // Shows the note under the field, in the place of the one that is there; an empty one takes it
  // back. A field that nobody sees has none.
  static void Show(QWidget* field, const QString& text, Stays stays = Stays::kUntilTakenBack);
  // What stands under the field now.
  static QString Of(const QWidget* field);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  explicit FieldNote(QWidget* field);
  static FieldNote* Find(const QWidget* field);
  void Place();

  QWidget* field_;
  int timer_ = 0;
};

}  // namespace kladez
