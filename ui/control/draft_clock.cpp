#include "ui/control/draft_clock.h"

#include <chrono>

#include <QTimer>

namespace tricklet::ui {
namespace {

constexpr std::chrono::seconds kBetween{3};

}  // namespace

DraftClock::DraftClock(Session& session, QObject* parent)
    : QObject(parent), session_(session), keeper_(session) {
  auto* clock = new QTimer(this);
  connect(clock, &QTimer::timeout, this, &DraftClock::Keep);
  clock->start(kBetween);
}

void DraftClock::Keep() {
  const QString before = Problem();
  keeper_.Keep();
  if (Problem() != before) emit ProblemChanged();
}

QString DraftClock::Problem() const {
  return QString::fromStdString(keeper_.Problem());
}

}  // namespace tricklet::ui
