// The command that writes a session as a web page.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "library/session.h"
#include "publish/published.h"
#include "publish/web/shown_names.h"

namespace tricklet {

/// What `frmPublish` and the command line ask for.
struct PublishChoices {
  BoardRange boards;
  std::string title;  ///< UTF-8; empty: the library's name
  NamesShown names = NamesShown::Full;
  std::filesystem::path folder;  ///< made when it is missing
  bool replaceForeign = false;   ///< what others have written is replaced without a question
  bool report = false;           ///< plays are reviewed, and the page has the report
  bool notes = false;            ///< what is written about the boards is published too
};

/// What to begin with: what was chosen last, all boards of the current library, and the library's
/// name as the title unless another was chosen for this very library.
PublishChoices ProposedPublish(const Session& session);
/// Keeps `choices` for `ProposedPublish`; tells when they could not be stored.
void RememberPublish(Session& session, const PublishChoices& choices);

/// The page in a folder of its own.
inline constexpr const char* kWebPageName = "index.html";

/// Writes the boards of the range, as they are stored, into the folder: the page and beside it the
/// PBN, each whole or not at all. Missing tables are computed first, and plays
/// reviewed where the report is wanted. What has these names and was
/// not written by this program is asked about: it goes to the recycle bin, or nothing is done. The
/// path of the page when it was written; what could not be shown in full has then been told.
/// Nothing otherwise: after a message, or when the person has cancelled.
std::optional<std::filesystem::path> PublishWebPage(Session& session,
                                                    const PublishChoices& choices);

}  // namespace tricklet
