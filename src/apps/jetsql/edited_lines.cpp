// Lines edited at a terminal, with a history that outlives the session.
#include "apps/jetsql/edited_lines.h"

#include <histedit.h>
#include <langinfo.h>
#include <unistd.h>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace jetsql {
namespace {

constexpr int rememberedStatements = 1000;
constexpr std::size_t longestRemembered = 8192;  // bytes; a statement that was pasted whole is no use there

/// The editor takes the encoding of texts from the locale; ours are always UTF-8.
void useUtf8() {
  std::setlocale(LC_CTYPE, "");
  if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) std::setlocale(LC_CTYPE, "C.UTF-8");
}

class EditedLines : public Lines {
 public:
  explicit EditedLines(const std::string& historyFile) : historyFile_(historyFile) {
    useUtf8();
    history_ = history_init();
    HistEvent event;
    history(history_, &event, H_SETSIZE, rememberedStatements);
    history(history_, &event, H_SETUNIQUE, 1);
    history(history_, &event, H_LOAD, historyFile_.c_str());
    editor_ = el_init("jetsql", stdin, stdout, stderr);
    el_set(editor_, EL_CLIENTDATA, this);
    el_set(editor_, EL_PROMPT, prompt);
    el_set(editor_, EL_EDITOR, "emacs");
    el_set(editor_, EL_HIST, history, history_);
    // Ctrl-C comes as a key, so that it gives up the statement and not the program.
    el_set(editor_, EL_SETTY, "-d", "-isig", nullptr);
    el_set(editor_, EL_ADDFN, "give-up", "Give up the statement", giveUp);
    el_set(editor_, EL_BIND, "^C", "give-up", nullptr);
    el_set(editor_, EL_BIND, "^R", "em-inc-search-prev", nullptr);
    el_source(editor_, nullptr);
  }
  ~EditedLines() override {
    el_end(editor_);
    history_end(history_);
  }
  EditedLines(const EditedLines&) = delete;
  EditedLines& operator=(const EditedLines&) = delete;

  Reading read(std::string& line, bool continues) override {
    std::fflush(stdout);
    continues_ = continues;
    abandoned_ = false;
    int length = 0;
    const char* text = el_gets(editor_, &length);
    if (abandoned_ || !text) std::fputc('\n', stdout);
    if (abandoned_) return Reading::Abandoned;
    if (!text || length <= 0) return Reading::End;
    line.assign(text, static_cast<std::size_t>(length));
    while (line.ends_with('\n') || line.ends_with('\r')) line.pop_back();
    return Reading::Line;
  }

  void remember(const std::string& statement) override {
    if (statement.size() > longestRemembered) return;
    std::string line = statement;
    std::ranges::replace(line, '\n', ' ');
    HistEvent event;
    history(history_, &event, H_ENTER, line.c_str());
    std::error_code failure;
    const auto folder = std::filesystem::path(historyFile_).parent_path();
    if (std::filesystem::create_directories(folder, failure))
      std::filesystem::permissions(folder, std::filesystem::perms::owner_all, failure);
    history(history_, &event, H_SAVE, historyFile_.c_str());
  }

 private:
  static EditedLines& of(EditLine* editor) {
    void* self = nullptr;
    el_get(editor, EL_CLIENTDATA, &self);
    return *static_cast<EditedLines*>(self);
  }
  static char* prompt(EditLine* editor) {
    static char first[] = "jetsql> ", next[] = "   ...> ";
    return of(editor).continues_ ? next : first;
  }
  static unsigned char giveUp(EditLine* editor, int) {
    of(editor).abandoned_ = true;
    return CC_EOF;
  }

  std::string historyFile_;
  History* history_ = nullptr;
  EditLine* editor_ = nullptr;
  bool continues_ = false;
  bool abandoned_ = false;
};

}  // namespace

std::unique_ptr<Lines> editedLines(const std::string& historyFile) {
  return std::make_unique<EditedLines>(historyFile);
}

bool atTerminal() {
  return ::isatty(STDIN_FILENO) != 0 && ::isatty(STDOUT_FILENO) != 0;
}

}  // namespace jetsql
