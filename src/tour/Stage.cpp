#include "tour/Stage.h"

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
      context_{data_, session_, settings_, clock_, desk_},
      window_(context_) {
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
