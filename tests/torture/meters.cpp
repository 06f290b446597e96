// SPDX-License-Identifier: MIT
#include "tests/torture/meters.h"

#include <cstdlib>
#include <memory>
#include <new>

#ifdef A2L2JSON_KNOWS_CALLGRIND
#include <fstream>
#include <string>

#include <valgrind/callgrind.h>
#endif

#ifdef __linux__
#include <linux/perf_event.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

// The sanitizers have their own operator new, which knows more than this one.
#if defined(__SANITIZE_ADDRESS__)
#define A2L_OWN_OPERATOR_NEW 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define A2L_OWN_OPERATOR_NEW 0
#endif
#endif
// On Windows a weak function does not replace that of the library.
#if !defined(A2L_OWN_OPERATOR_NEW) && defined(__GNUC__) && !defined(_WIN32)
#define A2L_OWN_OPERATOR_NEW 1
#endif

namespace {

thread_local std::uint64_t allocated = 0;

}  // namespace

#if A2L_OWN_OPERATOR_NEW
// These are weak, so that another test may define strong ones. Nothing is counted then.
// NOLINTBEGIN(cppcoreguidelines-no-malloc)
__attribute__((weak)) void* operator new(std::size_t size) {
  allocated += size;
  if (void* memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}
__attribute__((weak)) void operator delete(void* memory) noexcept { std::free(memory); }
__attribute__((weak)) void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}
// NOLINTEND(cppcoreguidelines-no-malloc)
#endif

namespace a2l::test {

std::optional<std::uint64_t> AllocatedBytes(const std::function<void()>& work) {
  const std::uint64_t before = allocated;
  const auto probe = std::make_unique<std::uint64_t>(before);
  if (allocated == *probe) return std::nullopt;
  const std::uint64_t start = allocated;
  work();
  return allocated - start;
}

#ifdef __linux__

namespace {

// Counts the instructions of this process outside of the kernel.
class InstructionCounter {
 public:
  InstructionCounter() {
    perf_event_attr attributes{};
    attributes.type = PERF_TYPE_HARDWARE;
    attributes.size = sizeof(attributes);
    attributes.config = PERF_COUNT_HW_INSTRUCTIONS;
    attributes.disabled = 1;
    attributes.exclude_kernel = 1;
    attributes.exclude_hv = 1;
    file_ = static_cast<int>(syscall(SYS_perf_event_open, &attributes, 0, -1, -1, 0));
  }
  ~InstructionCounter() {
    if (file_ >= 0) close(file_);
  }
  InstructionCounter(const InstructionCounter&) = delete;
  InstructionCounter& operator=(const InstructionCounter&) = delete;

  [[nodiscard]] bool Works() const { return file_ >= 0; }
  void Start() const { ioctl(file_, PERF_EVENT_IOC_ENABLE, 0); }
  [[nodiscard]] std::optional<std::uint64_t> Stop() const {
    ioctl(file_, PERF_EVENT_IOC_DISABLE, 0);
    std::uint64_t count = 0;
    if (read(file_, &count, sizeof(count)) != sizeof(count) || count == 0) return std::nullopt;
    return count;
  }

 private:
  int file_ = -1;
};

}  // namespace

namespace {

std::optional<std::uint64_t> CountedBySystem(const std::function<void()>& work) {
  const InstructionCounter counter;
  if (!counter.Works()) return std::nullopt;
  counter.Start();
  work();
  return counter.Stop();
}

}  // namespace

#else

namespace {

std::optional<std::uint64_t> CountedBySystem(const std::function<void()>& /*work*/) {
  return std::nullopt;
}

}  // namespace

#endif

#ifdef A2L2JSON_KNOWS_CALLGRIND

namespace {

// With each call Callgrind writes another file, whose number it appends to the name.
std::optional<std::uint64_t> CountedByCallgrind(const std::function<void()>& work) {
  static int files = 0;
  // NOLINTNEXTLINE(concurrency-mt-unsafe): the tests have one thread
  const char* const name = std::getenv("A2L2JSON_CALLGRIND_OUT");
  if (name == nullptr) return std::nullopt;
  CALLGRIND_ZERO_STATS;
  work();
  CALLGRIND_DUMP_STATS;
  std::ifstream file(std::string(name) + "." + std::to_string(++files));
  for (std::string word; file >> word;) {
    if (std::uint64_t count = 0; word == "totals:" && file >> count) return count;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::uint64_t> ExecutedInstructions(const std::function<void()>& work) {
  return RUNNING_ON_VALGRIND != 0 ? CountedByCallgrind(work) : CountedBySystem(work);
}

#else

std::optional<std::uint64_t> ExecutedInstructions(const std::function<void()>& work) {
  return CountedBySystem(work);
}

#endif

}  // namespace a2l::test
