// Statements typed at a terminal, each saved as it has run.
#include "apps/jetsql/conversation.h"

#include <ostream>

#include "apps/jetsql/errors.h"
#include "apps/jetsql/output.h"
#include "apps/jetsql/session.h"
#include "apps/jetsql/shell.h"
#include "jet/dao/engine.h"
#include "runtime/error.h"

namespace jetsql {
namespace {

constexpr char greeting[] =
    "Ogni istruzione viene salvata appena eseguita. .help elenca i comandi, .quit termina.\n";

class Conversation {
 public:
  Conversation(const Request& request, Lines& lines, std::ostream& rows, std::ostream& errors)
      : lines_(lines),
        script_(lines),
        rows_(rows),
        errors_(errors),
        database_(openDatabase(*workspace_, request)),
        output_(request.json ? jsonOutput(rows) : tabbedOutput(rows)),
        shell_(database_, *output_) {
    for (const auto& answer : request.answers) shell_.addAnswer(answer);
  }

  void run() {
    rows_ << greeting;
    while (takeTurn()) rows_.flush();
    database_->Close();
  }

 private:
  /// Reads a piece and runs it. False at the end.
  bool takeTurn() {
    ScriptPiece piece;
    try {
      rows_.flush();
      auto next = script_.next();
      if (!next) return false;
      lines_.remember(next->text);
      piece.text = std::move(next->text);  // lines of a terminal have no numbers
      return carryOut(piece.text);
    } catch (const runtime::Error& error) {
      rows_.flush();
      tellError(errors_, error, piece);
      errors_.flush();
      return true;
    }
  }

  bool carryOut(const std::string& text) {
    workspace_->BeginTrans();
    try {
      const bool goesOn = shell_.run(text);
      workspace_->CommitTrans();
      return goesOn;
    } catch (...) {
      workspace_->Rollback();
      throw;
    }
  }

  Lines& lines_;
  Script script_;
  std::ostream& rows_;
  std::ostream& errors_;
  std::shared_ptr<jet::dao::Workspace> workspace_ = jet::dao::DBEngine::Workspaces(0);
  jet::dao::DatabasePtr database_;
  std::unique_ptr<Output> output_;
  Shell shell_;
};

}  // namespace

int runConversation(const Request& request, Lines& lines, std::ostream& rows, std::ostream& errors) {
  try {
    Conversation(request, lines, rows, errors).run();
    return 0;
  } catch (const runtime::Error& error) {
    tellError(errors, error, {});
    return 1;
  }
}

}  // namespace jetsql
