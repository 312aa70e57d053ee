#include "tour/Stage.h"

#include <QFileInfo>

#include "system/PathNames.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kSplashMilliseconds = 400;

}  // namespace

Stage::Stage(const QString& data_directory, const QString& settings_file, const Clock& clock,
             std::function<void()> page_ready)
    : data_(data_directory),
      settings_(settings_file),
      clock_(clock),
      desk_(data_, std::move(page_ready)),
      keeping_(data_, settings_, clock_),
      context_{data_, session_, settings_, clock_, desk_, {}, {}, &keeping_},
      window_(context_) {
  qputenv("XDG_STATE_HOME", EncodePath(QFileInfo(settings_file).absolutePath()));
  window_.resize(1280, 800);
}

void Stage::Play(Robot& robot, const std::function<void(Robot&)>& script) {
  robot.Run([&](Robot& player) {
    player.PictureWhenShown(u"frmSplash"_s);
    player.InWindow([this] {
      window_.Start(kSplashMilliseconds);
      window_.show();
      window_.activateWindow();
    });
    script(player);
  });
}

}  // namespace kladez
