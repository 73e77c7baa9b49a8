// The report of a session on its web page.
#pragma once

#include <cstddef>
#include <map>
#include <utility>

#include "publish/published.h"
#include "publish/web/entrants.h"
#include "publish/web/json_writer.h"
#include "publish/web/shown_names.h"

namespace tricklet {

/// What the review adds to the tables of the boards, as web_data.h has it.
class WebReview {
 public:
  explicit WebReview(const PublishedReview& review);
  /// Writes the members of the table of `row`, counted from 0.
  void WriteTable(JsonWriter& json, int boardNumber, std::size_t row) const;

 private:
  const PublishedReview& review_;
  std::map<std::pair<int, std::size_t>, const ReportTable*> tables_;
};

/// Writes the member "report" where plays have been reviewed.
void WriteReport(JsonWriter& json, const Published& published, const Entrants& entrants,
                 NamesShown names);

}  // namespace tricklet
