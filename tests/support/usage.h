#pragma once

#include "case_file.h"
#include "command.h"

namespace support {

/// Runs a program with the arguments of each case. Its result is the exit status and a part of what is said:
/// on the output if the program ends well, else as an error.
inline void expectUsage(const std::string& program, const std::string& cases) {
  CaseFile(cases).expectResults([&](const Case& each) {
    const CommandResult result = runCommand(program + " " + fieldsOf(each.statement)[0]);
    EXPECT_EQ(result.status == 0 ? result.errors : result.output, "");
    const std::string said = result.output + result.errors;
    const std::string part = each.result.substr(each.result.find(' ') + 1);
    return std::to_string(result.status) + " " + (said.find(part) == std::string::npos ? said : part);
  });
}

}  // namespace support
