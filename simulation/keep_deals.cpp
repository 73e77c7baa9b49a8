#include "simulation/keep_deals.h"

#include <algorithm>

#include "core/fault.h"
#include "core/text.h"
#include "library/board_file.h"
#include "library/library_choice.h"
#include "library/library_folders.h"
#include "library/library_names.h"
#include "library/library_write.h"

namespace tricklet {
namespace {

/// Makes another library the current one for a while, for what writes into it.
class OtherLibrary {
 public:
  OtherLibrary(Session& session, const std::string& name)
      : session_(session), before_(session.settings.library) {
    session_.settings.library = name;
  }
  ~OtherLibrary() { session_.settings.library.swap(before_); }
  OtherLibrary(const OtherLibrary&) = delete;
  OtherLibrary& operator=(const OtherLibrary&) = delete;

 private:
  Session& session_;
  std::string before_;
};

/// How many were stored before the person cancelled, or all. Throws `Fault`.
int StoreAll(Session& session, const std::vector<HandTable>& deals, LibraryWrite& write) {
  const auto count = static_cast<int>(deals.size());
  const WorkScope work(session.host);
  Board board;
  for (int number = 1; number <= std::min(count, kLastBoardNumber); ++number) {
    const std::string text = "Storing board " + std::to_string(number);
    if (!session.host.Step(text, number - 1, count)) return number - 1;
    board.boardNumber = number;
    board.hands = deals[static_cast<std::size_t>(number - 1)];
    write.Replace(session.BoardPath(number), WriteBoardText(board));
  }
  write.Finish();
  return std::min(count, kLastBoardNumber);
}

}  // namespace

bool KeepDeals(Session& session, const std::vector<HandTable>& deals, std::string_view name) {
  const std::string trimmed(Trim(name));
  const auto count = std::min(deals.size(), static_cast<std::size_t>(kLastBoardNumber));
  if (!AcceptNewName(session, trimmed)) return false;
  int stored = 0;
  try {
    const OtherLibrary other(session, trimmed);
    if (!RequireLibraryFolder(session)) return false;
    auto write = LibraryWrite::Begin(session);
    if (!write) return false;
    stored = StoreAll(session, deals, *write);
  } catch (const std::exception& failure) {
    ErrorReport(session.host, FaultFrom(failure));
    RefreshLibraryNames(session);
    return false;
  }
  RefreshLibraryNames(session);
  std::string text = std::to_string(stored) + (stored == 1 ? " deal is" : " deals are") +
                     " kept in the library " + ShownName(trimmed);
  if (deals.size() > count)
    text += ": a library holds no more of the " + std::to_string(deals.size());
  session.host.TellResult(text);
  return static_cast<std::size_t>(stored) == count;
}

}  // namespace tricklet
