// What the solver has said of the plays and the leads of a session, kept with the library.
//
// The hidden file ".tricklet-review" of the library's folder, which is neither listed nor copied.
// Each line is a question and its answer, "KIND QUESTION ANSWER", single blanks between them:
//
//   P DEAL STRAIN DECLARER CARDS TRICKS   a play: the cards as suit and rank ("SAH2..."), the
//   tricks
//                                         before the lead and after each card, a digit 0..d each
//   L DEAL STRAIN DECLARER TRICKS         the leads: declarer's tricks after each card of the
//                                         leader, in the order of his hand
//
// The question is the whole of what was asked, so the answer to a record that has been changed is
// not found. Whatever is in the file is taken as hostile: an answer counts only if it is possible
// for its question, and a file that cannot be read counts as empty, since all of it can be solved
// again.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "analysis/solver.h"
#include "library/session.h"
#include "review/session_report.h"

namespace tricklet {

/// Largest file that is read or written. A session of 450 plays takes some 100 KiB.
inline constexpr std::size_t kMaxReviewCacheBytes = std::size_t{32} * 1024 * 1024;

class ReviewCache {
 public:
  std::optional<PlayTricks> Find(const SolverPlay& play);
  void Add(const SolverPlay& play, const PlayTricks& tricks);

  std::optional<LeadTricks> FindLeads(const HandTable& hands, LeadKey key);
  void AddLeads(const HandTable& hands, LeadKey key, const LeadTricks& leads);

  /// Reads the text of the file; lines that make no sense are passed over.
  void Parse(std::string_view text);
  /// The answers that have been found or added, and no others; at most `kMaxReviewCacheBytes`.
  std::string Text() const;
  /// `Text` would be another than the one that was parsed.
  bool Changed() const;

 private:
  struct Answer {
    std::string tricks;
    bool used = false;
  };
  std::string_view Use(const std::string& question);

  std::map<std::string, Answer> answers_;
  bool added_ = false;
};

/// What the current library has kept; nothing where there is none or it cannot be read.
ReviewCache LoadReviewCache(const Session& session);

/// Puts what `cache` would keep into the current library, whole or not at all. Where that cannot be
/// (another program is changing the library, or it cannot be written) nothing is kept or told: it
/// is only the time that is lost.
void StoreReviewCache(Session& session, const ReviewCache& cache);

}  // namespace tricklet
