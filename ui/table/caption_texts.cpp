#include "ui/table/caption_texts.h"

#include <QStringList>

#include "core/statistics.h"
#include "ui/style/qt_text.h"
#include "ui/table/table_words.h"

namespace tricklet::ui {
namespace {

const QString kBetween = QStringLiteral(" \u00B7 ");
const QString kColon = QStringLiteral(": ");

enum class Role : std::uint8_t { None, Declarer, Dummy };

Role RoleOf(const Board& board, const Settings& settings, Seat seat) {
  if (board.contract.empty() || board.contract == kAllPass) return Role::None;
  if (seat == board.declarer && settings.captionDeclarer) return Role::Declarer;
  if (seat == PartnerOf(board.declarer) && settings.captionDummy) return Role::Dummy;
  return Role::None;
}

QString InFull(Role role) {
  if (role == Role::None) return {};
  return role == Role::Declarer ? TableWords::tr("Declarer") : TableWords::tr("Dummy");
}
QString InShort(Role role) {
  if (role == Role::None) return {};
  return role == Role::Declarer ? TableWords::tr("declarer") : TableWords::tr("dummy");
}

QString ToAct(const CaptionFacts& facts, Seat seat) {
  if (facts.toAct != seat) return {};
  return facts.play ? TableWords::tr("to play") : TableWords::tr("to call");
}

QString Joined(QStringList parts) {
  parts.removeAll(QString());
  return parts.join(kBetween);
}

QString CardCount(int cards) {
  return cards == 1 ? TableWords::tr("1 card") : TableWords::tr("%1 cards").arg(cards);
}

QStringList Figures(const Statistics& statistics, const Settings& settings, Seat seat) {
  const int points = statistics.seatHcp[seat];
  const int losers = statistics.seatLtc[seat];
  QStringList figures;
  if (settings.captionHcp) {
    figures << (points == 1 ? TableWords::tr("1 point") : TableWords::tr("%1 points").arg(points));
  }
  if (settings.captionLtc) {
    figures << (losers == 1 ? TableWords::tr("1 loser") : TableWords::tr("%1 losers").arg(losers));
  }
  return figures;
}

/// What follows the name of the seat, which some of the captions do not have.
QString FullCaption(const Board& board, const Settings& settings, const CaptionFacts& facts,
                    Seat seat, const QString& edited) {
  const QString seatName = ToQt(SeatName[seat]) + kColon;
  const QString name = ToQt(facts.names[seat]);
  const QString role = InFull(RoleOf(board, settings, seat));
  const QString toAct = ToAct(facts, seat);
  const QString hidden = facts.hidden[seat] ? TableWords::tr("hidden") : QString();
  if (facts.play || facts.hidden[seat]) {
    return (seatName + Joined({name, hidden, role, toAct})).trimmed();
  }
  const QString text = (edited + u' ' + role).simplified();
  if (text.isEmpty() && !toAct.isEmpty()) return seatName + Joined({name, toAct});
  return Joined({name, text, toAct});
}

QString ShortCaption(const Board& board, const Settings& settings, const CaptionFacts& facts,
                     Seat seat, const Statistics& statistics) {
  QStringList parts{ToQt(SeatName[seat]), ToQt(facts.names[seat])};
  const bool cards = statistics.seatCardCount[seat] > 0;
  if (facts.hidden[seat]) {
    parts << TableWords::tr("hidden");
  } else if (cards && (!facts.play || facts.toAct != seat)) {
    if (settings.captionnCards && statistics.seatCardCount[seat] != kCardsInHand) {
      parts << CardCount(statistics.seatCardCount[seat]);
    }
    parts << Figures(statistics, settings, seat);
  }
  parts << InShort(RoleOf(board, settings, seat)) << ToAct(facts, seat);
  return Joined(parts);
}

}  // namespace

PerSeat<QString> CaptionTexts(const Board& board, const Settings& settings,
                              const CaptionFacts& facts) {
  const Statistics statistics = GetStats(board.hands);
  // The parts of these end in blanks of their own.
  const PerSeat<std::string> edited = GetCaptionsEdit(statistics, settings);
  const bool cards = HasCards(board.hands);
  PerSeat<QString> captions;
  for (const Seat seat : kAllSeats) {
    if (!cards && !facts.play && facts.toAct != seat) continue;
    captions[seat] =
        settings.captionStyle == CaptionStyle::Short
            ? ShortCaption(board, settings, facts, seat, statistics)
            : FullCaption(board, settings, facts, seat, cards ? ToQt(edited[seat]) : QString());
  }
  return captions;
}

PerSeat<QString> EditCaptions(const Board& board, const Settings& settings) {
  const Statistics statistics = GetStats(board.hands);
  Settings named = settings;
  named.captionPlayer = true;
  const PerSeat<std::string> edited = GetCaptionsEdit(statistics, named);
  PerSeat<QString> captions;
  for (const Seat seat : kAllSeats) {
    captions[seat] =
        settings.captionStyle == CaptionStyle::Short
            ? Joined(QStringList{ToQt(SeatName[seat]), CardCount(statistics.seatCardCount[seat])} +
                     Figures(statistics, settings, seat))
            : ToQt(edited[seat]).simplified();
  }
  return captions;
}

QString PackCaption(const Board& board, const Settings& settings) {
  int cards = 0;
  for (const Holding missing : GetStats(board.hands).missingCards) cards += missing.Count();
  return TableWords::tr("Pack") +
         (settings.captionStyle == CaptionStyle::Short ? kBetween : kColon) + CardCount(cards);
}

}  // namespace tricklet::ui
