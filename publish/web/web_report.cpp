#include "publish/web/web_report.h"

#include <string>
#include <string_view>
#include <vector>

#include "publish/web/web_ranking.h"
#include "review/report_sheet.h"

namespace tricklet {
namespace {

/// The columns that are shown beside number and names, which the page writes by itself.
std::vector<std::size_t> ShownColumns(const ReportSheet& sheet) {
  std::vector<std::size_t> shown;
  for (std::size_t at = 0; at < sheet.columns.size(); ++at) {
    const ReportColumn& column = sheet.columns[at];
    if (column.brief && column.heading != "No" && column.heading != "Names") shown.push_back(at);
  }
  return shown;
}

void WriteEntrant(JsonWriter& json, const SessionReport& report, std::size_t index,
                  const Entrants& entrants, NamesShown names) {
  const ReportEntrant& one = report.entrants.at(index);
  const ReportSheet sheet = EntrantSheet(report, {index});
  json.BeginObject().Key("entrant").Number(
      report.contestants == Contestants::Teams ? -1 : entrants.EntrantOf(one.number, one.names));
  json.Key("number").String(one.number);
  json.Key("names").String(ContestantNames(one.names, report.contestants, names));
  json.Key("cells").BeginArray();
  for (const std::size_t at : ShownColumns(sheet)) json.String(sheet.rows[0][at]);
  json.EndArray().EndObject();
}

/// A table for each field.
void WriteFields(JsonWriter& json, const SessionReport& report, const Entrants& entrants,
                 NamesShown names) {
  json.Key("tables").BeginArray();
  for (std::size_t next = 0; next < report.entrants.size();) {
    const std::string& field = report.entrants[next].field;
    json.BeginObject().Key("heading").String(field).Key("rows").BeginArray();
    for (; next < report.entrants.size() && report.entrants[next].field == field; ++next) {
      WriteEntrant(json, report, next, entrants, names);
    }
    json.EndArray().EndObject();
  }
  json.EndArray();
}

}  // namespace

WebReview::WebReview(const PublishedReview& review) : review_(review) {
  for (const ReportTable& table : review.report.tables) {
    tables_.emplace(std::pair(table.boardNumber, table.row), &table);
  }
}

void WebReview::WriteTable(JsonWriter& json, int boardNumber, std::size_t row) const {
  const auto& reviews = review_.answers.reviews;
  if (const auto found = reviews.find({boardNumber, row}); found != reviews.end()) {
    constexpr std::string_view kDigits = "0123456789abcd";
    std::string given;
    for (const ReviewedCard& card : found->second.cards) {
      given += kDigits.at(static_cast<std::size_t>(card.given));
    }
    json.Key("given").String(given);
  }
  const auto table = tables_.find({boardNumber, row});
  if (table == tables_.end()) return;
  if (const auto par = table->second->par) json.Key("against").Number(par->total);
  if (const std::string why = table->second->WhyBeaten(); !why.empty()) json.Key("why").String(why);
}

void WriteReport(JsonWriter& json, const Published& published, const Entrants& entrants,
                 NamesShown names) {
  if (!published.review) return;
  const SessionReport& report = published.review->report;
  const ReportSheet sheet = EntrantSheet(report, {});
  json.Key("report").BeginObject().Key("columns").BeginArray();
  for (const std::size_t at : ShownColumns(sheet)) {
    json.BeginObject().Key("heading").String(sheet.columns[at].heading);
    json.Key("meaning").String(sheet.columns[at].meaning).EndObject();
  }
  json.EndArray();
  WriteFields(json, report, entrants, names);
  json.Key("notes").BeginArray();
  for (const std::string& remark : report.remarks) {
    if (names == NamesShown::Full || !NamesSomebody(remark, published)) json.String(remark);
  }
  json.EndArray().EndObject();
}

}  // namespace tricklet
