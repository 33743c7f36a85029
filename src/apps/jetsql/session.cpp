#include "apps/jetsql/session.h"

#include <istream>
#include <optional>
#include <ostream>

#include "apps/jetsql/output.h"
#include "apps/jetsql/script.h"
#include "apps/jetsql/shell.h"
#include "jet/dao/engine.h"
#include "jet/sql/syntax_error.h"
#include "platform/disk.h"
#include "platform/paths.h"
#include "runtime/error.h"

namespace jetsql {
namespace {

/// The statement's line that holds the character at `position`, with a caret under it.
std::string markedLine(const std::string& statement, std::size_t position) {
  std::string line;
  std::string mark;
  for (const char c : statement) {
    const bool startsCharacter = (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    const bool reached = position == 0;
    if (c == '\n') {
      if (reached) break;
      line.clear();
      mark.clear();
    } else {
      line += c;
      if (startsCharacter && !reached) mark += c == '\t' ? '\t' : ' ';
    }
    if (startsCharacter && !reached) --position;
  }
  return "  " + line + "\n  " + mark + "^\n";
}

/// Where the statements come from: the command line, else the script.
class Source {
 public:
  Source(const Request& request, std::istream& script) : request_(request), script_(script) {}

  std::optional<ScriptPiece> next() {
    if (request_.statements.empty()) return script_.next();
    if (index_ == request_.statements.size()) return std::nullopt;
    return ScriptPiece{request_.statements[index_++]};
  }

 private:
  const Request& request_;
  Script script_;
  std::size_t index_ = 0;
};

class Session {
 public:
  Session(const Request& request, std::istream& script, std::ostream& rows, std::ostream& errors)
      : request_(request), source_(request, script), rows_(rows), errors_(errors) {}

  int run() {
    try {
      open();
      runAll();
      save();
      return 0;
    } catch (const jet::sql::SyntaxError& error) {
      tell(error);
      errors_ << markedLine(piece_.text, error.position());
    } catch (const runtime::Error& error) {
      tell(error);
    }
    takeBack();
    return 1;
  }

 private:
  void open() {
    const std::string path = platform::fromSystemPath(request_.file);
    if (request_.create) {
      database_ = workspace_->CreateDatabase(path);
      createdPath_ = path;
    } else {
      database_ = workspace_->OpenDatabase(path, !request_.readOnly, request_.readOnly);
    }
    workspace_->BeginTrans();
  }

  void runAll() {
    const auto output = request_.json ? jsonOutput(rows_) : tabbedOutput(rows_);
    Shell shell(database_, *output);
    for (const auto& answer : request_.answers) shell.addAnswer(answer);
    while (auto piece = source_.next()) {
      piece_ = std::move(*piece);
      shell.run(piece_.text);
      piece_ = {};
    }
    shell.checkAnswersUsed();
    rows_.flush();
    if (!rows_) throw runtime::Error(runtime::DeviceIoError, "jetsql", "Le righe non si possono scrivere");
  }

  void save() {
    database_->Close();
    workspace_->CommitTrans();
  }

  void tell(const runtime::Error& error) {
    errors_ << "jetsql: ";
    if (piece_.line != 0) errors_ << "riga " << piece_.line << ": ";
    errors_ << "errore " << error.number() << ": " << error.description() << "\n";
  }

  /// Closing the workspace rolls the transaction back.
  void takeBack() {
    try {
      workspace_->Close();
      if (!createdPath_.empty()) platform::removeFile(createdPath_);
    } catch (const runtime::Error& error) {
      piece_ = {};
      tell(error);
    }
  }

  const Request& request_;
  Source source_;
  std::ostream& rows_;
  std::ostream& errors_;
  std::shared_ptr<jet::dao::Workspace> workspace_ = jet::dao::DBEngine::Workspaces(0);
  jet::dao::DatabasePtr database_;
  std::string createdPath_;
  ScriptPiece piece_;  // the one that runs
};

}  // namespace

int runSession(const Request& request, std::istream& script, std::ostream& rows, std::ostream& errors) {
  return Session(request, script, rows, errors).run();
}

}  // namespace jetsql
