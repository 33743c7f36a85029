#include "controls/form.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/scripted_desktop.h"

namespace {

class FormTest : public testing::Test {
 protected:
  FormTest() {
    form.loading.connect([this] { log += "load "; });
    form.queryUnload.connect([this](bool& refuse) {
      log += "query ";
      refuse = refuses;
    });
    form.unloading.connect([this] { log += "unload "; });
  }

  support::ScriptedDesktop desktop;
  controls::DesktopScope scope{desktop};
  controls::Form form{"frm", "Finestra"};
  std::string log;
  bool refuses = false;
};

}  // namespace

TEST_F(FormTest, LivesThroughLoadShowAndUnloadOnce) {
  form.show();
  form.show();
  EXPECT_TRUE(form.unload());
  EXPECT_TRUE(form.unload());
  EXPECT_EQ(log, "load query unload ");
  EXPECT_EQ(desktop.forms, (std::vector<std::string>{"load frm", "show frm", "show frm", "unload frm"}));
}

TEST_F(FormTest, KnowsItsSizeWhenItLoads) {
  int width = 0;
  form.loading.connect([&] { width = form.width(); });
  form.load();
  EXPECT_EQ(width, 640);
}

TEST_F(FormTest, AFormUnloadedWhileItLoadsIsNotShown) {
  form.loading.connect([&] { form.unload(); });
  form.show();
  EXPECT_EQ(desktop.forms, (std::vector<std::string>{"load frm", "unload frm"}));
}

TEST_F(FormTest, AHandlerCanRefuseToLeave) {
  form.load();
  refuses = true;
  EXPECT_FALSE(form.unload());
  EXPECT_TRUE(form.loaded());
  EXPECT_EQ(log, "load query ");
}

TEST_F(FormTest, LeavingDuringWorkWaitsForItsEnd) {
  form.load();
  form.whileBusy([&] {
    form.whileBusy([&] { EXPECT_FALSE(form.unload()); });
    EXPECT_TRUE(form.loaded());
    log += "end ";
  });
  EXPECT_FALSE(form.loaded());
  EXPECT_EQ(log, "load end query unload ");
}

TEST_F(FormTest, WorkThatFailsLeavesTheWindowUnloadable) {
  form.load();
  EXPECT_THROW(form.whileBusy([] { throw std::runtime_error("guasto"); }), std::runtime_error);
  EXPECT_FALSE(form.busy());
  EXPECT_TRUE(form.unload());
}

TEST_F(FormTest, ADestroyedFormTakesItsWindowAlong) {
  {
    controls::Form other("other", "");
    other.load();
  }
  EXPECT_EQ(desktop.forms.back(), "unload other");
}
