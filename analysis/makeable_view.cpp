#include "analysis/makeable_view.h"

namespace tricklet {

MakeableView MakeMakeableView(const MakeableTable& table, bool contracts) {
  constexpr std::array kColumns{Strain::Spades, Strain::Hearts, Strain::Diamonds, Strain::Clubs,
                                Strain::NoTrump};
  MakeableView view;
  view.caption = contracts ? "Makeable contracts" : "Makeable tricks";
  std::size_t rowIndex = 0;
  for (const Seat seat : kAllSeats) {
    MakeableView::Row& row = view.rows.at(rowIndex++);
    row.seat = SeatName[seat];
    for (std::size_t column = 0; column < kColumns.size(); ++column) {
      const int tricks = table[ToTableSeat(seat)][ToTableStrain(kColumns.at(column))];
      const int value = contracts ? tricks - kBook : tricks;
      row.cells.at(column) = value > 0 ? std::to_string(value) : "-";
    }
  }
  return view;
}

}  // namespace tricklet
