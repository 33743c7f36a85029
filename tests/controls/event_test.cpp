#include "controls/event.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using controls::Event;
using controls::Subscription;

TEST(Event, HandlersRunInTheOrderOfConnectionWithTheArguments) {
  Event<int> event;
  std::string seen;
  event.connect([&](int number) { seen += "a" + std::to_string(number); });
  event.connect([&](int number) { seen += "b" + std::to_string(number); });
  event.raise(7);
  EXPECT_EQ(seen, "a7b7");
}

TEST(Event, ADroppedSubscriptionIsNotCalledEvenIfDroppedDuringTheRaise) {
  Event<> event;
  Subscription later;
  int laterCalls = 0;
  event.connect([&] { later.release(); });
  later = event.subscribe([&] { ++laterCalls; });
  event.raise();
  event.raise();
  EXPECT_EQ(laterCalls, 0);
}

TEST(Event, AHandlerMayRaiseTheEventAgainAndConnectMore) {
  Event<> event;
  int depth = 0;
  int added = 0;
  event.connect([&] {
    if (++depth == 1) {
      event.connect([&] { ++added; });
      event.raise();
    }
  });
  event.raise();
  EXPECT_EQ(depth, 2);
  EXPECT_EQ(added, 1);  // by the inner raise alone
}

TEST(Event, ASubscriptionMayOutliveTheEvent) {
  auto event = std::make_unique<Event<>>();
  Subscription subscription = event->subscribe([] {});
  event.reset();
  subscription.release();
}

TEST(Event, AnEventMayBeDestroyedByItsHandler) {
  auto event = std::make_unique<Event<>>();
  bool second = false;
  event->connect([&] { event.reset(); });
  event->connect([&] { second = true; });
  event->raise();
  EXPECT_TRUE(second);
}
