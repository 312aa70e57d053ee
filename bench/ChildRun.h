// Processor seconds and most memory of a piece of work, measured in a process of its own.
#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <stdexcept>

namespace kladez {

struct Figures {
  double seconds;
  double megabytes;
};

inline double ProcessorSeconds() {
  struct rusage usage;
  ::getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) { return time.tv_sec + time.tv_usec / 1e6; };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// The quickest of some runs in a child, so that its memory is that of the work alone.
inline Figures MeasureInChild(int runs, const std::function<void()>& work) {
  int ends[2];
  if (::pipe(ends) < 0) throw std::runtime_error("no pipe");
  std::fflush(stdout);
  const pid_t child = ::fork();
  if (child == 0) {
    double best = 1e9;
    for (int run = 0; run < runs; ++run) {
      const double before = ProcessorSeconds();
      work();
      best = std::min(best, ProcessorSeconds() - before);
    }
    if (::write(ends[1], &best, sizeof best) < 0) ::_exit(1);
    ::_exit(0);
  }
  Figures figures{};
  if (::read(ends[0], &figures.seconds, sizeof figures.seconds) < 0) figures.seconds = 0;
  struct rusage usage;
  int status = 0;
  ::wait4(child, &status, 0, &usage);
  figures.megabytes = static_cast<double>(usage.ru_maxrss) / 1024;
  ::close(ends[0]);
  ::close(ends[1]);
  return figures;
}

}  // namespace kladez
