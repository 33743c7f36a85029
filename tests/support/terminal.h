#pragma once

#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <string>

namespace support {

/// A program that runs at a terminal of its own, as if a user sat there.
class Terminal {
 public:
  /// Runs a line of the shell.
  explicit Terminal(const std::string& line) {
    struct winsize size = {24, 200, 0, 0};
    process_ = ::forkpty(&terminal_, nullptr, nullptr, &size);
    if (process_ == 0) {
      ::execl("/bin/sh", "sh", "-c", ("exec " + line).c_str(), nullptr);
      ::_exit(127);
    }
  }
  ~Terminal() {
    if (!ended_) {
      ::kill(process_, SIGKILL);
      ::waitpid(process_, nullptr, 0);
    }
    ::close(terminal_);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  void type(const std::string& keys) {
    for (std::size_t sent = 0; sent < keys.size();) {
      const auto count = ::write(terminal_, keys.data() + sent, keys.size() - sent);
      if (count <= 0) return;
      sent += static_cast<std::size_t>(count);
    }
  }

  /// What is shown from the last call on up to and including `text`; all there was if `text` doesn't come
  /// within some seconds.
  std::string until(const std::string& text) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    std::size_t found;
    while ((found = shown_.find(text)) == std::string::npos && std::chrono::steady_clock::now() < deadline)
      if (!readSome()) break;
    const std::size_t length = found == std::string::npos ? shown_.size() : found + text.size();
    std::string result = shown_.substr(0, length);
    shown_.erase(0, length);
    return result;
  }

  /// The same for a prompt: what follows is read key by key, so it waits until the program takes keys.
  std::string prompt(const std::string& text) {
    std::string result = until(text);
    termios mode{};
    for (int i = 0; i < 2000; ++i) {
      ::tcgetattr(terminal_, &mode);
      if ((mode.c_lflag & ICANON) == 0) break;
      ::usleep(1000);
    }
    return result;
  }

  /// Waits for the program's end and gives its exit status, or minus the signal that ended it.
  int end() {
    while (readSome()) {
    }
    int status = 0;
    ::waitpid(process_, &status, 0);
    ended_ = true;
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
  }

 private:
  bool readSome() {
    constexpr int milliseconds = 20000;
    pollfd ready = {terminal_, POLLIN, 0};
    if (::poll(&ready, 1, milliseconds) <= 0) return false;
    char data[4096];
    const auto count = ::read(terminal_, data, sizeof data);
    if (count <= 0) return false;
    shown_.append(data, static_cast<std::size_t>(count));
    return true;
  }

  int terminal_ = -1;
  pid_t process_ = -1;
  bool ended_ = false;
  std::string shown_;
};

}  // namespace support
