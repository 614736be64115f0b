// The main window in long use: it leaks no memory and does not slow down. By default the test is short and checks only
// memory; QUILLON_SOAK=N in the environment makes everything N times as long, up to the figures of
// "docs/reliability.md", and compares durations too, which needs a quiet machine.

#include <QCoreApplication>
#include <QEvent>
#include <QPixmapCache>
#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <gtest/gtest.h>
#include <iostream>
#include <malloc.h>
#include <numeric>
#include <unistd.h>
#include <vector>

#include "testing/main_stage.h"
#include "tests/address_sanitizer.h"

namespace quillon {
namespace {

/// How many times longer than by default a soak is; 0 by default.
int SoakFactor() {
  const char* const factor = std::getenv("QUILLON_SOAK");
  return factor == nullptr ? 0 : std::max(std::atoi(factor), 1);
}

int Times(int everyday) {
  return everyday * std::max(SoakFactor(), 1);
}

/// Bytes that the process has allocated and not freed, except for Qt's picture cache: that fills up to its limit of 10
/// MiB, and is emptied when nothing is drawn for a while, which never happens here.
double BytesInUse() {
  QPixmapCache::clear();
  return static_cast<double>(mallinfo2().uordblks) + static_cast<double>(mallinfo2().hblkhd);
}

/// The process's bytes in physical memory, likewise.
double BytesResident() {
  QPixmapCache::clear();
  ::malloc_trim(0);
  long pages = 0;
  std::ifstream file("/proc/self/statm");
  file >> pages >> pages;
  return static_cast<double>(pages) * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

double Seconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;  // CPU time, whatever else the machine does
}

/// The median of some durations.
double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

class Soak : public MainFormTest {
 protected:
  void SetUp() override {
    MainFormTest::SetUp();
#if defined(QUILLON_ADDRESS_SANITIZER)
    GTEST_SKIP() << "a sanitizer keeps freed memory";
#endif
  }

  /// Calls `act` this many times. The first tenth does not count: caches fill, and so do the pools of fonts.
  void Repeat(const char* name, int times, const std::function<void(int)>& act) {
    const int settled = std::min(std::max(times / 10, 10), 100);
    std::vector<double> durations;
    double bytesBefore = 0;
    double residentBefore = 0;
    for (int turn = 0; turn < times; ++turn) {
      if (turn == settled) {
        bytesBefore = BytesInUse();
        residentBefore = BytesResident();
      }
      const double start = Seconds();
      act(turn);
      // Frees closed objects, which a test's own event loop has to do.
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      durations.push_back(Seconds() - start);
    }
    const double growth = (BytesInUse() - bytesBefore) / (times - settled);
    Report(name, times, growth, BytesResident() / residentBefore, durations, settled);
  }

 private:
  static void Report(const char* name, int times, double growth, double resident, const std::vector<double>& durations,
                     int settled) {
    const auto first = durations.begin() + settled;
    const std::ptrdiff_t part = std::max<std::ptrdiff_t>((durations.end() - first) / 4, 1);
    const double early = Median({first, first + part});
    const double late = Median({durations.end() - part, durations.end()});
    std::cout << times << " " << name << ": " << growth << " more bytes in use a turn, memory " << resident * 100
              << "%, a turn took " << early * 1000 << " ms of the processor's time early and " << late * 1000
              << " ms late\n";
    // Qt keeps the names of drawn pictures, some hundred bytes per dialog, and drops them in idle time. Tables that
    // grow by doubling take some more, once.
    const double settling = 65536.0 / static_cast<double>(durations.end() - first);
    EXPECT_LT(growth, 1024 + settling) << "memory is leaked";
    EXPECT_LT(resident, 1.05) << "memory grows";
    if (SoakFactor() > 0) {
      EXPECT_LT(late, early * 1.5) << "it becomes slower";
    }
  }
};

TEST_F(Soak, Analyses) {
  EnterCall("150", "50", "Pairs");
  EnterRaise("150", "50", "62.5", "Pairs", "Tight");
  EnterEquity("Tight");
  Repeat("analyses", Times(60), [this](int turn) {
    const auto button = static_cast<std::int16_t>(turn % 3);
    Open(button);
    Click("cmdPreflopEV", button);
    ASSERT_FALSE(Form.State().HandInfo.empty());
  });
}

TEST_F(Soak, Hovers) {
  RunRaise("150", "50", "62.5", "Pairs", "Tight");
  Repeat("hovers", Times(600), [this](int turn) {
    MoveTo({230, 565});
    const auto index = static_cast<std::int16_t>(turn * 31 % 169);
    MoveOver("lblCards", index);
    ASSERT_EQ(Caption("lblHov_Cards"), HandLabel(index));
  });
}

TEST_F(Soak, Dialogs) {
  Open(kCallNav);
  // After some thousand, the picture names that Qt keeps would dominate.
  constexpr int kMost = 1000;
  Repeat("openings of dialogs", std::min(Times(20), kMost), [this](int turn) {
    const bool manager = turn % 2 == 0;
    if (manager) {
      Click("lblRangeManager");
      ASSERT_NE(Dialogs.LoadedManager(), nullptr);
      Dialogs.LoadedManager()->close();
    } else {
      Click("lblNewRange", kCallNav);
      ASSERT_NE(Dialogs.LoadedNewRange(), nullptr);
      Dialogs.LoadedNewRange()->close();
    }
    ComeToFront();
  });
}

TEST_F(Soak, Reports) {
  RunRaise("150", "50", "62.5", "Pairs", "Tight");
  Repeat("openings of the report", Times(30), [this](int turn) { Open(turn % 2 == 0 ? kDetailsNav : kGridNav); });
}

}  // namespace
}  // namespace quillon
