#include <gtest/gtest.h>

#include <QApplication>

namespace {

/// The platform without a screen tells at every window what it cannot do; everything else is worth reading.
void showMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (!message.startsWith("This plugin does not support")) fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(showMessage);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
