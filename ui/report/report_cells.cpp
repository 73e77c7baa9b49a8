#include "ui/report/report_cells.h"

#include <string_view>

#include <QCoreApplication>

#include "ui/report/report_texts.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Texts of this file are translated under this name.
struct Words {
  Q_DECLARE_TR_FUNCTIONS(SessionReport)
};

/// The rank of a contract, 0 when all have passed.
double RankOf(const std::string& contract) {
  constexpr std::string_view kRising = "CDHSN";
  if (contract.size() < 2 || contract[0] < '1' || contract[0] > '7') return 0;
  const std::size_t strain = kRising.find(contract[1]);
  return (contract[0] - '0') * static_cast<double>(kRising.size()) + static_cast<double>(strain);
}

}  // namespace

ReportCell TextCell(const QString& text) {
  return {text, std::nullopt};
}

ReportCell CountCell(int count) {
  return {QString::number(count), count};
}

ReportCell CountCell(std::optional<int> count) {
  return count ? CountCell(*count) : ReportCell();
}

ReportCell PointsCell(std::optional<int> points) {
  return points ? ReportCell{SignedText(*points), *points} : ReportCell();
}

ReportCell MeanCell(const MeanFigure& figure) {
  const auto mean = figure.Mean();
  if (!mean) return {};
  return {
      SignedText(*mean), *mean,
      Words::tr("%1 points in all, of %2 results").arg(SignedText(figure.sum)).arg(figure.count)};
}

ReportCell MeanCell(const GivenFigures& figure) {
  const auto mean = figure.Mean();
  if (!mean) return {};
  return {MeanText(*mean), *mean,
          Words::tr("tricks: %1, plays: %2").arg(figure.tricks).arg(figure.plays)};
}

ReportCell ShareCell(int part, int whole) {
  if (whole == 0) return {};
  return {Words::tr("%1 of %2").arg(part).arg(whole), static_cast<double>(part) / whole};
}

ReportCell ContractCell(const ReportTable& table) {
  if (table.contract.empty()) return {};
  return {ContractText(table), RankOf(table.contract)};
}

}  // namespace tricklet::ui
