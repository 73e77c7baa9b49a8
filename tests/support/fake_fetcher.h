// A network whose answers a test gives.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "update/fetcher.h"

namespace tricklet::test {

class FakeFetcher : public Fetcher {
 public:
  void Fetch(const std::string& address, std::function<void(const Fetched&)> done) override {
    asked.push_back(address);
    done_ = std::move(done);
  }
  /// The last question is answered by a file with these bytes.
  void Answer(const std::string& bytes) { done_({bytes, {}}); }
  void Fail(const std::string& why) { done_({{}, why}); }

  std::vector<std::string> asked;  ///< addresses

 private:
  std::function<void(const Fetched&)> done_;
};

}  // namespace tricklet::test
