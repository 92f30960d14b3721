#include "workers.h"

#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <system_error>
#include <thread>
#endif

namespace host {
namespace {

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

}  // namespace

void run_all(std::size_t count, const std::function<void(std::size_t)> &task) {
  std::vector<Job> jobs;
  for (std::size_t i = 0; i < count; ++i) jobs.push_back({&task, i});
  std::vector<Thread> threads;
  for (std::size_t i = 1; i < count; ++i) threads.emplace_back(jobs[i]);
  task(0);  // in this thread
  for (Thread &thread : threads) thread.wait();
}

}  // namespace host
