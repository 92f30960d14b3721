#include "batch_files.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "lines.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <system_error>
#include <thread>
#endif

namespace host {
namespace {

// Work for several cores at once -------------------------------------------------------------------

struct Job {
  const std::function<void(std::size_t)> *task;
  std::size_t number;

  void run() const { (*task)(number); }
};

// A job runs in a thread of its own. If the system has no thread left, wait() does the job.

#ifdef _WIN32

// MinGW has no std::thread with the threads of Windows.
class Thread {
 public:
  explicit Thread(Job &job) : job_(job), handle_(CreateThread(nullptr, 0, run, &job, 0, nullptr)) {}

  void wait() {
    if (handle_ == nullptr) return job_.run();
    WaitForSingleObject(handle_, INFINITE);
    CloseHandle(handle_);
  }

 private:
  static DWORD WINAPI run(void *address) {
    static_cast<Job *>(address)->run();
    return 0;
  }

  Job &job_;
  HANDLE handle_;
};

#else

class Thread {
 public:
  explicit Thread(Job &job) : job_(job) {
    try {
      thread_ = std::thread([&job] { job.run(); });
    } catch (const std::system_error &) {  // wait() sees that there is no thread
    }
  }

  void wait() { thread_.joinable() ? thread_.join() : job_.run(); }

 private:
  Job &job_;
  std::thread thread_;
};

#endif

// Calls task(0) to task(count - 1), each in a thread of its own as far as the system has threads, and
// waits for all.
void run_all(std::size_t count, const std::function<void(std::size_t)> &task) {
  std::vector<Job> jobs;
  for (std::size_t i = 0; i < count; ++i) jobs.push_back({&task, i});
  std::vector<Thread> threads;
  for (std::size_t i = 1; i < count; ++i) threads.emplace_back(jobs[i]);
  task(0);  // in this thread
  for (Thread &thread : threads) thread.wait();
}

// Blocks of lines ----------------------------------------------------------------------------------

constexpr std::size_t block_of_a_job = std::size_t{1} << 20;

// A share of a block, and what became of it.
struct Share {
  std::string_view text;
  std::size_t first_line;
  std::string csv;
  Tally tally;
};

// About equal shares, each of whole lines. Returns the number of the line behind the block.
std::size_t divide(std::string_view text, std::size_t first_line, std::vector<Share> &shares) {
  for (std::size_t i = 0; i < shares.size(); ++i) {
    const std::size_t aim = text.size() / (shares.size() - i);
    const std::size_t end = i + 1 == shares.size() ? std::string_view::npos : text.find('\n', aim);
    const std::size_t length = end == std::string_view::npos ? text.size() : end + 1;
    shares[i].text = text.substr(0, length);
    shares[i].first_line = first_line;
    shares[i].csv.clear();
    first_line +=
        static_cast<std::size_t>(std::count(shares[i].text.begin(), shares[i].text.end(), '\n'));
    text.remove_prefix(length);
  }
  return first_line;
}

void show_progress(const BatchRun &run, std::size_t read, const Tally &tally) {
  constexpr std::size_t width = 30;
  std::string bar;
  if (run.size > 0) {
    const std::size_t done = std::min(read, run.size);
    bar.assign(width * done / run.size, '#');
    bar.resize(width, '.');
    bar = '[' + bar + "] " + std::to_string(100 * done / run.size) + " %  ";
  }
  std::fprintf(stderr, "\r%s%zu section%s", bar.c_str(), tally.sections,
               tally.sections == 1 ? "" : "s");
  std::fflush(stderr);
}

bool write(std::FILE *file, const std::string &text) {
  return std::fwrite(text.data(), 1, text.size(), file) == text.size();
}

}  // namespace

BatchResult run_batch(std::FILE *input, std::FILE *output, const BatchRun &run) {
  BatchResult result;
  Lines lines(input, block_of_a_job * run.jobs);
  std::vector<Share> shares(run.jobs);
  std::size_t line = 1;
  result.is_written = write(output, batch_header(run.extent));
  for (std::string_view block = lines.next(); !block.empty() && result.is_written;
       block = lines.next()) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";  // which spreadsheets put before UTF-8
    if (line == 1 && block.substr(0, mark.size()) == mark) block.remove_prefix(mark.size());
    line = divide(block, line, shares);
    run_all(shares.size(), [&](std::size_t i) {
      Share &share = shares[i];
      share.tally = add_batch(share.text, share.first_line, run.extent, share.csv);
    });
    for (const Share &share : shares) {
      result.tally.sections += share.tally.sections;
      result.tally.refused += share.tally.refused;
      result.is_written = result.is_written && write(output, share.csv);
    }
    if (run.has_progress) show_progress(run, lines.read(), result.tally);
  }
  if (run.has_progress) std::fputc('\n', stderr);
  if (lines.is_too_long()) result.too_long = line;
  result.is_read = std::ferror(input) == 0;
  result.is_written = std::fflush(output) == 0 && result.is_written;
  return result;
}

}  // namespace host
