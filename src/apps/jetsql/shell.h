#pragma once

#include <memory>
#include <string>
#include <vector>

#include "apps/jetsql/literal.h"
#include "jet/dao/database.h"

namespace jetsql {

class Output;

/// Runs statements and dot commands on one database and gives the rows of each SELECT to `output`.
class Shell {
 public:
  Shell(jet::dao::DatabasePtr database, Output& output) : database_(std::move(database)), output_(output) {}

  /// Answers the parameter of this name in every statement that has it; `text` is NAME=LITERAL.
  void addAnswer(const std::string& text) { answers_.push_back({readAnswer(text, *database_)}); }
  /// A statement or a dot command. False if the command ends the session.
  bool run(const std::string& text);
  /// Error 5 if an answer was asked for by no statement.
  void checkAnswersUsed() const;

 private:
  struct Answer {
    ParameterAnswer parameter;
    bool used = false;
  };

  void runStatement(const std::string& text);
  void answerParameters(jet::dao::QueryDef& query);
  void printRows(jet::dao::Recordset& rows);

  jet::dao::DatabasePtr database_;
  Output& output_;
  std::vector<Answer> answers_;
};

}  // namespace jetsql
