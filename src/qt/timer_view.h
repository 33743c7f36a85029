#pragma once

#include <QTimer>

#include "controls/timer.h"

namespace qt {

class TimerView : public QTimer {
 public:
  TimerView(controls::Timer& timer, QObject* parent);

 private:
  controls::Subscription subscription_;
};

}  // namespace qt
