// Who holds a file, from the restart manager.
#include <windows.h>
// The restart manager's header builds on the one above.
#include <restartmanager.h>

#include <vector>

#include "platform/disk.h"
#include "platform/windows/wide.h"

namespace platform {

namespace {

/// A question to the restart manager, which knows what programs have a file open.
class Session {
 public:
  Session() { open_ = ::RmStartSession(&number_, 0, key_) == ERROR_SUCCESS; }
  ~Session() {
    if (open_) ::RmEndSession(number_);
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  std::vector<RM_PROCESS_INFO> usersOf(const std::wstring& file) const {
    const wchar_t* files[] = {file.c_str()};
    if (!open_ || ::RmRegisterResources(number_, 1, files, 0, nullptr, 0, nullptr) != ERROR_SUCCESS)
      return {};
    std::vector<RM_PROCESS_INFO> users(16);
    for (;;) {
      auto count = static_cast<UINT>(users.size());
      UINT needed = 0;
      DWORD reasons = 0;
      const DWORD result = ::RmGetList(number_, &needed, &count, users.data(), &reasons);
      if (result == ERROR_MORE_DATA && needed > users.size()) {
        users.resize(needed);
        continue;
      }
      users.resize(result == ERROR_SUCCESS ? count : 0);
      return users;
    }
  }

 private:
  DWORD number_ = 0;
  wchar_t key_[CCH_RM_SESSION_KEY + 1] = {};
  bool open_ = false;
};

}  // namespace

std::string lockHolder(const std::string& path) {
  std::string own;
  for (const RM_PROCESS_INFO& user : Session().usersOf(windows::wide(path))) {
    const DWORD process = user.Process.dwProcessId;
    const std::string holder = windows::narrow(user.strAppName) + " (" + std::to_string(process) + ")";
    if (process != ::GetCurrentProcessId()) return holder;
    own = holder;
  }
  return own;
}

}  // namespace platform
