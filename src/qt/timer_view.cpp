// A timer by Qt's.
#include "qt/timer_view.h"

#include "qt/guard.h"

namespace qt {

TimerView::TimerView(controls::Timer& timer, QObject* parent) : QTimer(parent) {
  auto update = [this, &timer] {
    stop();
    if (timer.running()) start(timer.interval());
  };
  update();
  subscription_ = timer.changed.subscribe(update);
  connect(this, &QTimer::timeout, this, [&timer] { guarded([&] { timer.timer.raise(); }); });
}

}  // namespace qt
