// Captions and texts between the models and Qt.
#include "qt/text.h"

namespace qt {

QString withoutMnemonic(const QString& caption) {
  QString plain;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && ++i == caption.size()) break;
    plain += caption[i];
  }
  return plain;
}

}  // namespace qt
