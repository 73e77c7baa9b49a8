#include "publish/web/publish_web.h"

#include <vector>

#include "core/fault.h"
#include "core/local_time.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/leftovers.h"
#include "disk/presence.h"
#include "library/unsaved_changes.h"
#include "publish/web/web_page.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMaxPageBytes = std::size_t{256} * 1024 * 1024;

/// What is in the places of the page and its PBN and was not written by this command.
std::vector<fs::path> ForeignFiles(const fs::path& page, const fs::path& pbn) {
  const bool pageThere = IsTaken(page);
  if (pageThere && FileExists(page) && IsWebPage(ReadWholeFile(page, kMaxPageBytes))) return {};
  std::vector<fs::path> foreign;
  if (pageThere) foreign.push_back(page);
  if (IsTaken(pbn)) foreign.push_back(pbn);
  return foreign;
}

/// The person wants files that others have written replaced.
bool WantsReplaced(Host& host, const std::vector<fs::path>& foreign) {
  std::string list;
  for (const fs::path& file : foreign) list += "\n" + ShownPath(file);
  return host.Ask({.text = std::string(kProgramName) + " has not written what is there:" + list +
                           "\nDo you want to replace it?",
                   .safe = Answer::No,
                   .detail = "It would go to the recycle bin.",
                   .agree = "Replace",
                   .refuse = "Keep"}) == Answer::Yes;
}

/// False, after a message, when one of them is still in its place.
bool RecycleAll(Host& host, const std::vector<fs::path>& files) {
  for (const fs::path& file : files) {
    const fs::path old = fs::canonical(file);  // a link stays one
    if (host.Recycle(old)) continue;
    host.TellError("Unable to send the old file to the recycle bin:\n" + ShownPath(old));
    return false;
  }
  return true;
}

struct Places {
  fs::path page;
  fs::path pbn;
  std::vector<fs::path> foreign;  // what is there and has to make way
};

/// Both files are complete on the disk before anything that is there makes way for them.
bool WriteBoth(Host& host, const Places& places, std::string_view html, std::string_view boards) {
  UnflushedFolders unflushed;
  Replacement page(places.page);
  Replacement pbn(places.pbn);
  page.File().Write(html);
  pbn.File().Write(boards);
  page.Complete();
  pbn.Complete();
  if (!RecycleAll(host, places.foreign)) return false;
  pbn.PutInPlace(unflushed);
  page.PutInPlace(unflushed);
  unflushed.Flush();
  return true;
}

std::optional<fs::path> Publish(Session& session, const PublishChoices& choices) {
  Places places{choices.folder / kWebPageName, choices.folder / kWebPbnName, {}};
  places.foreign = ForeignFiles(places.page, places.pbn);
  if (!places.foreign.empty() && !choices.replaceForeign &&
      !WantsReplaced(session.host, places.foreign)) {
    return std::nullopt;
  }
  auto published = GatherBoards(session, choices.boards, true);
  if (!published) return std::nullopt;
  std::string whyNoReport;
  if (choices.report && !AddReview(session, *published, whyNoReport)) return std::nullopt;
  const WebChoices web{choices.title.empty() ? session.LibraryName() : choices.title, TodayText(),
                       choices.names, choices.notes};
  MakeFolders(choices.folder);
  SweepLeftovers(session.host, choices.folder);
  if (!WriteBoth(session.host, places, WebPage(*published, web), WebPbn(*published, web))) {
    return std::nullopt;
  }
  std::string remark = RemarkOn(*published, true);
  if (!whyNoReport.empty())
    remark += (remark.empty() ? "" : "\n") + ("There is no report: " + whyNoReport);
  if (!remark.empty()) session.host.TellError(remark);
  return places.page;
}

}  // namespace

PublishChoices ProposedPublish(const Session& session) {
  const PublishSettings& last = session.settings.publish;
  PublishChoices choices;
  if (session.library.boardCount > 0)
    choices.boards = {session.library.firstBoard, session.library.lastBoard};
  const bool titled = last.library == session.LibraryName() && !last.title.empty();
  choices.title = titled ? last.title : session.LibraryName();
  choices.names = NamesShownOf(last.names).value_or(NamesShown::Full);
  choices.folder = PathFromText(last.folder);
  choices.report = last.report;
  return choices;
}

void RememberPublish(Session& session, const PublishChoices& choices) {
  PublishSettings& settings = session.settings.publish;
  settings.names = NamesShownName(choices.names);
  settings.report = choices.report;
  settings.folder = PathText(choices.folder);
  settings.library = session.LibraryName();
  settings.title = choices.title;
  SavePublishSettings(session.settings, session.store);
  StoreSettings(session);
}

std::optional<fs::path> PublishWebPage(Session& session, const PublishChoices& choices) {
  // What is published is what is stored, so changes to the current board are settled first.
  if (!SettleChanges(session)) return std::nullopt;
  try {
    return Publish(session, choices);
  } catch (const std::exception& failure) {
    session.host.TellError(FaultFrom(failure).Description());
    return std::nullopt;
  }
}

}  // namespace tricklet
