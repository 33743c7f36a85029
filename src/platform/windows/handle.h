#pragma once

#include <windows.h>

#include <utility>

namespace platform::windows {

/// A handle of the system, closed at the end of its scope unless it was released.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  ~Handle() {
    if (*this) ::CloseHandle(handle_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  explicit operator bool() const { return handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }
  HANDLE release() { return std::exchange(handle_, nullptr); }

 private:
  HANDLE handle_;
};

}  // namespace platform::windows
