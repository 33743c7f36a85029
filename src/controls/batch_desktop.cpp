// Boxes, questions and dialogs as lines of a stream, answered from the command line.
#include "controls/batch_desktop.h"

#include <algorithm>
#include <ostream>
#include <thread>

#include "controls/common_dialog.h"
#include "controls/form.h"
#include "controls/text_box.h"

namespace controls {
namespace {

std::string_view kindOf(int style) {
  switch (iconOf(style)) {
    case vbCritical:
      return "errore";
    case vbQuestion:
      return "domanda";
    case vbExclamation:
      return "avviso";
    case vbInformation:
      return "informazione";
    default:
      return buttonsOf(style).size() > 1 ? "domanda" : "messaggio";
  }
}

}  // namespace

std::string oneLine(const std::string& text) {
  std::string line;
  for (const char letter : text) {
    if (letter == '\n') {
      line += " / ";
    } else if (letter != '\r') {
      line += letter;
    }
  }
  return line;
}

BatchDesktop::BatchDesktop(std::ostream& out, Answer answer, std::optional<std::string> application)
    : out_(out), answer_(answer), application_(std::move(application)) {}

MessageAnswer BatchDesktop::answerTo(int style) const {
  const MessageAnswer wanted = answer_ == Answer::Yes      ? vbYes
                               : answer_ == Answer::No     ? vbNo
                               : answer_ == Answer::Cancel ? vbCancel
                                                           : defaultButtonOf(style);
  return hasButton(style, wanted) ? wanted : defaultButtonOf(style);
}

void BatchDesktop::write(std::string_view kind, const std::string& title, const std::string& text) {
  out_ << '[' << kind << "] " << title << ": " << oneLine(text);
}

MessageAnswer BatchDesktop::showBox(const std::string& text, int style, const std::string& title) {
  ++boxesShown_;
  const MessageAnswer answer = answerTo(style);
  write(kindOf(style), title, text);
  if (buttonsOf(style).size() > 1) out_ << " -> " << captionOf(answer);
  out_ << std::endl;
  return answer;
}

std::string BatchDesktop::showInput(const std::string& prompt, const std::string& title,
                                    const std::string& text) {
  const bool givenUp = answer_ == Answer::No || answer_ == Answer::Cancel;
  std::string answer = application_ ? *application_ : givenUp ? std::string() : text;
  write("richiesta", title, prompt);
  out_ << " -> \"" << oneLine(answer) << '"' << std::endl;
  return answer;
}

bool BatchDesktop::showOpen(CommonDialog& dialog) {
  write("file", dialog.dialogTitle().empty() ? DefaultTitle : dialog.dialogTitle(), "scelta di un file");
  out_ << " -> " << captionOf(vbCancel) << std::endl;
  return false;
}

void BatchDesktop::doEvents() {
  // Whoever waits by letting events run should not keep a processor for itself.
  std::this_thread::yield();
}

void BatchDesktop::showForm(Form& form, bool modal) {
  if (modal) form.unload();
}

void streamText(TextBox& box, std::ostream& out) {
  box.appended.connect([&out](std::string_view text) {
    for (const char letter : text)
      if (letter != '\r') out << letter;
    out.flush();
  });
}

}  // namespace controls
