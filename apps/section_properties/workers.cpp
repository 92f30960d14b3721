#include "workers.h"

#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <thread>
#endif

namespace host {
namespace {

struct Job {
  const std::function<void(std::size_t)> *task;
  std::size_t number;
};

#ifdef _WIN32

// MinGW has no std::thread with the threads of Windows.
class Thread {
 public:
  explicit Thread(Job &job) : job_(job), handle_(CreateThread(nullptr, 0, run, &job, 0, nullptr)) {}

  void wait() {
    if (handle_ == nullptr) {  // there was no thread to have
      run(&job_);
      return;
    }
    WaitForSingleObject(handle_, INFINITE);
    CloseHandle(handle_);
  }

 private:
  static DWORD WINAPI run(void *address) {
    const Job &job = *static_cast<Job *>(address);
    (*job.task)(job.number);
    return 0;
  }

  Job &job_;
  HANDLE handle_;
};

#else

class Thread {
 public:
  explicit Thread(Job &job) : thread_([&job] { (*job.task)(job.number); }) {}
  void wait() { thread_.join(); }

 private:
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
