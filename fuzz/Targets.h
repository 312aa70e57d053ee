// Everything that reads bytes from outside the program, each as a function that throws a
// logic_error when a promise is broken. The fuzzers call them with bytes of their own making, a
// test calls them with the kept corpus and with damaged files.
#pragma once

#include <QByteArrayView>
#include <span>

namespace kladez {

struct FuzzTarget {
  const char* name;
  void (*run)(QByteArrayView bytes);
  bool is_file = true;  // else a field or a path, which is never long
};

// The readers and routines of the program, and what the viewer reads.
std::span<const FuzzTarget> FuzzTargets();
std::span<const FuzzTarget> ViewerFuzzTargets();

}  // namespace kladez
