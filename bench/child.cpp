#include "child.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>

extern char** environ;

namespace bench {
namespace {

[[noreturn]] void giveUp(const std::vector<std::string>& command, const std::string& reason) {
  std::cerr << "bench_office: " << reason << ":";
  for (const auto& word : command) std::cerr << " " << word;
  std::cerr << "\n";
  std::exit(1);
}

pid_t start(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  for (const auto& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int error = posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) giveUp(command, "can't start");
  return child;
}

}  // namespace

Measure runChild(const std::vector<std::string>& command) {
  using Clock = std::chrono::steady_clock;
  const auto begin = Clock::now();
  const pid_t child = start(command);
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child) giveUp(command, "can't wait");
  const std::chrono::duration<double> passed = Clock::now() - begin;
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) giveUp(command, "failed");
  return {passed.count(), static_cast<double>(usage.ru_maxrss) / 1024};
}

Measure middle(std::vector<Measure> runs) {
  std::sort(runs.begin(), runs.end(), [](const auto& a, const auto& b) { return a.seconds < b.seconds; });
  return runs[runs.size() / 2];
}

Measure medianOf(int times, const std::vector<std::string>& command) {
  std::vector<Measure> runs;
  for (int i = 0; i < times; ++i) runs.push_back(runChild(command));
  return middle(std::move(runs));
}

}  // namespace bench
