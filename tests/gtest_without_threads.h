// GoogleTest guards its bookkeeping with std::mutex, which MinGW's Win32 thread model lacks. The
// tests run on one thread; this stands in for the one class that needs it.
#pragma once

#ifdef __cplusplus
#define GTEST_HAS_NOTIFICATION_ 1

namespace testing::internal {

class Notification {
 public:
  void Notify() {}
  void WaitForNotification() {}
};

}  // namespace testing::internal
#endif
