// A host that says yes to everything and shows nothing.
#pragma once

#include "core/host.h"

namespace tricklet::bench {

class QuietHost : public Host {
 public:
  using Host::Ask;
  using Host::Tell;
  void Tell(const Message& /*message*/) override {}
  Answer Ask(const Question& question) override {
    return question.buttons == Buttons::OKCancel ? Answer::OK : Answer::Yes;
  }
  void Beep() override {}
  std::optional<std::filesystem::path> ChooseFolder(
      const std::string& /*title*/, const std::filesystem::path& /*start*/) override {
    return std::nullopt;
  }
  std::optional<std::filesystem::path> ChooseOpenFile(const FileChoice& /*choice*/) override {
    return std::nullopt;
  }
  std::vector<std::filesystem::path> ChooseOpenFiles(const FileChoice& /*choice*/) override {
    return {};
  }
  std::optional<std::filesystem::path> ChooseSaveFile(const FileChoice& /*choice*/) override {
    return std::nullopt;
  }
  bool Recycle(const std::filesystem::path& /*path*/) override { return false; }
  bool OpenUrl(const std::string& /*address*/) override { return false; }
  bool Step(const std::string& /*text*/, int /*done*/, int /*total*/) override { return true; }
  void BeginWork() override {}
  void EndWork() override {}
  void EndProgram() override {}
};

}  // namespace tricklet::bench
