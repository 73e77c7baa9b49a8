// The port to the network, which is asked for one small file and nothing else.
#pragma once

#include <functional>
#include <string>

namespace tricklet {

/// What came of asking.
struct Fetched {
  std::string bytes;    ///< the file; perhaps cut off when it is longer than `kLongestAnswer`
  std::string failure;  ///< why there is none, in words for the person; empty when there is one
};

/// Asks beside the program's own work, and one thing at a time.
class Fetcher {
 public:
  Fetcher() = default;
  Fetcher(const Fetcher&) = delete;
  Fetcher& operator=(const Fetcher&) = delete;
  /// What is being asked is given up; nothing of it is left running.
  virtual ~Fetcher() = default;

  /// Asks for the file at `address`, an allowed one, and gives up what was being asked before.
  /// Calls `done` once, on the thread of the caller and after this call has returned.
  virtual void Fetch(const std::string& address, std::function<void(const Fetched&)> done) = 0;
};

}  // namespace tricklet
