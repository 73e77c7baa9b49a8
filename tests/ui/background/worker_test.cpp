#include "ui/background/worker.h"

#include <future>

#include <QPointer>
#include <QTest>
#include <gtest/gtest.h>

namespace tricklet::ui {
namespace {

TEST(WorkerTest, EveryJobIsDoneBesideTheWindowAndDeliveredInIt) {
  Worker worker;
  const auto window = std::this_thread::get_id();
  int worked = 0;  // written by the worker, read where it is delivered
  int delivered = 0;
  for (int i = 0; i < 200; ++i) {
    worker.Post([&] { worked += std::this_thread::get_id() != window ? 1 : 0; },
                [&] { delivered += std::this_thread::get_id() == window ? 1 : 0; });
    if (i % 10 == 0) QCoreApplication::processEvents();
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return delivered == 200; }));
  EXPECT_EQ(worked, 200);
}

TEST(WorkerTest, TheNewestGoesFirstAndNothingIsDeliveredAfterTheEnd) {
  std::promise<void> begun;
  std::promise<void> goOn;
  std::vector<int> order;
  {
    Worker worker;
    worker.Post(
        [&] {
          begun.set_value();
          goOn.get_future().wait();
        },
        [&] { order.push_back(0); });
    begun.get_future().wait();
    for (const int number : {1, 2, 3}) worker.Post([] {}, [&, number] { order.push_back(number); });
    goOn.set_value();
    EXPECT_TRUE(QTest::qWaitFor([&] { return order.size() == 4; }));
    EXPECT_EQ(order, (std::vector<int>{0, 3, 2, 1}));
    worker.Post([] {}, [&] { order.push_back(4); });
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(order.size(), 4U);
}

TEST(WorkerTest, OneThatIsGivenUpEndsItsJobAndIsGone) {
  std::promise<void> begun;
  std::promise<void> goOn;
  QObject keeper;
  QPointer<Worker> kept;
  bool delivered = false;
  {
    auto worker = std::make_unique<Worker>();
    kept = worker.get();
    worker->Post(
        [&] {
          begun.set_value();
          goOn.get_future().wait();
        },
        [&] { delivered = true; });
    begun.get_future().wait();
    Worker::Retire(std::move(worker), &keeper);
  }
  QCoreApplication::processEvents();
  EXPECT_FALSE(kept.isNull()) << "its job is still under way";
  goOn.set_value();
  EXPECT_TRUE(QTest::qWaitFor([&] { return kept.isNull(); }));
  EXPECT_FALSE(delivered);
}

}  // namespace
}  // namespace tricklet::ui
