#include "system/SystemCalls.h"

#include "system/FaultHooks.h"

namespace kladez::syscalls {
namespace {

FaultHook& Hook() {
  static FaultHook hook;
  return hook;
}

Recorder& CurrentRecorder() {
  static Recorder recorder;
  return recorder;
}

}  // namespace

void SetFaultHook(FaultHook hook) { Hook() = std::move(hook); }

void SetRecorder(Recorder recorder) { CurrentRecorder() = std::move(recorder); }

int Fault(std::string_view call, const QByteArray& path) { return Hook() ? Hook()(call, path) : 0; }

void TellMade(const Made& made) {
  if (CurrentRecorder()) CurrentRecorder()(made);
}

int WriteNewFile(const QByteArray& path, QByteArrayView bytes, unsigned mode) {
  NewFile file(path);
  if (const int error = file.Create(mode)) return error;
  if (const int error = file.Write(bytes)) return error;
  return file.Sync();
}

}  // namespace kladez::syscalls
