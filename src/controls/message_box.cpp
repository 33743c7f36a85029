// A style taken apart into buttons, icon and default.
#include "controls/message_box.h"

#include <algorithm>
#include <array>
#include <vector>

namespace controls {
namespace {

const std::array<std::vector<MessageAnswer>, 6> boxes{{
    {vbOK},
    {vbOK, vbCancel},
    {vbAbort, vbRetry, vbIgnore},
    {vbYes, vbNo, vbCancel},
    {vbYes, vbNo},
    {vbRetry, vbCancel},
}};

/// From vbOK on.
constexpr std::array<std::string_view, 7> captions{"OK",     "Annulla", "Interrompi", "Riprova",
                                                   "Ignora", "Sì",      "No"};

}  // namespace

std::span<const MessageAnswer> buttonsOf(int style) {
  const auto kind = static_cast<std::size_t>(style & 0x0F);
  return kind < boxes.size() ? boxes[kind] : boxes[vbOKOnly];
}

MessageAnswer defaultButtonOf(int style) {
  const auto buttons = buttonsOf(style);
  const auto place = static_cast<std::size_t>((style >> 8) & 0x03);
  return place < buttons.size() ? buttons[place] : buttons.front();
}

bool hasButton(int style, MessageAnswer button) {
  return std::ranges::count(buttonsOf(style), button) > 0;
}

std::string_view captionOf(MessageAnswer button) {
  return captions.at(static_cast<std::size_t>(button) - vbOK);
}

int iconOf(int style) {
  return style & 0x70;
}

}  // namespace controls
