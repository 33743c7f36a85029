// A call of the shell, from its options to its exit status.
#include "apps/jetsql/session.h"

#include <istream>
#include <optional>
#include <ostream>

#include "apps/jetsql/errors.h"
#include "apps/jetsql/output.h"
#include "apps/jetsql/script.h"
#include "apps/jetsql/shell.h"
#include "jet/dao/engine.h"
#include "platform/disk.h"
#include "platform/paths.h"
#include "runtime/error.h"

namespace jetsql {
namespace {

/// Where the statements come from: the command line, else the script.
class Source {
 public:
  Source(const Request& request, std::istream& script) : request_(request), lines_(script), script_(lines_) {}

  std::optional<ScriptPiece> next() {
    if (request_.statements.empty()) return script_.next();
    if (index_ == request_.statements.size()) return std::nullopt;
    return ScriptPiece{request_.statements[index_++]};
  }

 private:
  const Request& request_;
  StreamLines lines_;
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
    } catch (const runtime::Error& error) {
      tellError(errors_, error, piece_);
    }
    takeBack();
    return 1;
  }

 private:
  void open() {
    database_ = openDatabase(*workspace_, request_);
    if (request_.create) createdPath_ = database_->Name();
    workspace_->BeginTrans();
  }

  void runAll() {
    const auto output = request_.json ? jsonOutput(rows_) : tabbedOutput(rows_);
    Shell shell(database_, *output);
    for (const auto& answer : request_.answers) shell.addAnswer(answer);
    while (auto piece = source_.next()) {
      piece_ = std::move(*piece);
      const bool goesOn = shell.run(piece_.text);
      piece_ = {};
      if (!goesOn) break;
    }
    shell.checkAnswersUsed();
    rows_.flush();
    if (!rows_) throw runtime::Error(runtime::DeviceIoError, "jetsql", "Le righe non si possono scrivere");
  }

  void save() {
    database_->Close();
    workspace_->CommitTrans();
  }

  /// Closing the workspace rolls the transaction back.
  void takeBack() {
    try {
      workspace_->Close();
      if (!createdPath_.empty()) platform::removeFile(createdPath_);
    } catch (const runtime::Error& error) {
      tellError(errors_, error, {});
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

jet::dao::DatabasePtr openDatabase(jet::dao::Workspace& workspace, const Request& request) {
  const std::string path = platform::fromSystemPath(request.file);
  if (request.create) return workspace.CreateDatabase(path);
  return workspace.OpenDatabase(path, !request.readOnly, request.readOnly);
}

int runSession(const Request& request, std::istream& script, std::ostream& rows, std::ostream& errors) {
  return Session(request, script, rows, errors).run();
}

}  // namespace jetsql
