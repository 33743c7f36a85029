#pragma once

#include <span>
#include <string_view>

namespace controls {

/// Style of a box: buttons + icon + default button.
enum MessageStyle : int {
  vbOKOnly = 0,
  vbOKCancel = 1,
  vbAbortRetryIgnore = 2,
  vbYesNoCancel = 3,
  vbYesNo = 4,
  vbRetryCancel = 5,
  vbCritical = 16,
  vbQuestion = 32,
  vbExclamation = 48,
  vbInformation = 64,
  vbDefaultButton1 = 0,
  vbDefaultButton2 = 256,
  vbDefaultButton3 = 512,
};

/// Buttons of a box, and its answer.
enum MessageAnswer : int {
  vbOK = 1,
  vbCancel = 2,
  vbAbort = 3,
  vbRetry = 4,
  vbIgnore = 5,
  vbYes = 6,
  vbNo = 7
};

/// The buttons of a box of `style`, from left to right.
std::span<const MessageAnswer> buttonsOf(int style);
/// The button that Enter presses.
MessageAnswer defaultButtonOf(int style);
/// True if the box of `style` has the button.
bool hasButton(int style, MessageAnswer button);
/// The Italian caption of a button.
std::string_view captionOf(MessageAnswer button);
/// The icon bits of a style: 0, vbCritical, vbQuestion, vbExclamation or vbInformation.
int iconOf(int style);

}  // namespace controls
