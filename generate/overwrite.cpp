#include "generate/overwrite.h"

#include <string>

#include "library/library_scan.h"
#include "library/loss_text.h"

namespace tricklet {

bool MayOverwrite(Session& session, int first, int last) {
  const std::string atStake =
      BoardsAtStake(ScanLibrary(session.LibraryPath()), first, last, "would be replaced");
  if (atStake.empty()) return true;
  return session.host.Ask({.text = "You will overwrite existing boards in the library - " +
                                   session.ShownLibrary() + "\nDo you wish to do that?",
                           .safe = Answer::No,
                           .detail = atStake + FateOfReplaced(session.settings)}) == Answer::Yes;
}

}  // namespace tricklet
