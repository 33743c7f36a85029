// The plan: what it says of a target, beside the run that follows it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "office.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "support/case_file.h"
#include "support/child_process.h"

namespace {

using office::Office;
using testing::ElementsAre;
using testing::HasSubstr;

console::BatchOptions planOf(const Office& office) {
  console::BatchOptions options = office.batch();
  options.plan = true;
  return options;
}

TEST(Plan, ForeseesWhatTheRunDoes) {
  support::CaseFile(CASES "/plans.cases").expectResults([](const support::Case& each) {
    Office office;
    office.makeTarget(office::with(office::oldInstallation(), each.all("design")));
    office.makeReference(office::with(office::reference(), each.all("reference")));
    const std::string before = platform::readWholeFile(office.target);

    const office::Printed plan = office::batch(planOf(office));
    EXPECT_EQ(platform::readWholeFile(office.target), before);
    EXPECT_THAT(office.dataFiles(), ElementsAre("studio.mdb"));
    for (const std::string& part : each.all("output")) EXPECT_THAT(plan.out, HasSubstr(part));
    for (const std::string& part : each.all("error")) EXPECT_THAT(plan.err, HasSubstr(part));
    EXPECT_EQ(plan.err.empty(), plan.status != console::FailedUnchanged) << plan.err;

    const std::string content = office::contentOf(office.target);
    const office::Printed run = office::batch(office.batch());
    if (run.status == console::Done) {
      EXPECT_EQ(office::contentOf(office.target) != content, plan.status == console::WouldChange);
    }
    return std::to_string(plan.status) + ", then " + std::to_string(run.status);
  });
}

TEST(Plan, ReadsAFileThatCanNotBeWritten) {
  Office office;
  const std::string target = platform::toSystemPath(office.target);
  ::chmod(target.c_str(), 0444);
  ::chmod(platform::toSystemPath(office.data).c_str(), 0555);
  const int status = support::runInChild([&] {
    if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) return 97;
    const office::Printed plan = office::batch(planOf(office));
    EXPECT_EQ(plan.err, "");
    EXPECT_THAT(plan.out, HasSubstr("in modifica"));
    return testing::Test::HasFailure() ? 98 : plan.status;
  });
  EXPECT_EQ(status, console::WouldChange);
}

}  // namespace
