#include "core/fault.h"

#include <filesystem>
#include <utility>

#include "core/host.h"
#include "core/text.h"

namespace tricklet {
namespace {

FaultNumber NumberOf(std::error_code code) {
  if (code == std::errc::no_such_file_or_directory) return FaultNumber::FileNotFound;
  if (code == std::errc::not_a_directory) return FaultNumber::PathNotFound;
  if (code == std::errc::no_space_on_device || code == std::errc::file_too_large) {
    return FaultNumber::DiskFull;
  }
  if (code == std::errc::permission_denied || code == std::errc::operation_not_permitted ||
      code == std::errc::read_only_file_system) {
    return FaultNumber::PermissionDenied;
  }
  if (code == std::errc::is_a_directory || code == std::errc::file_exists) {
    return FaultNumber::PathFileAccess;
  }
  return FaultNumber::DeviceError;
}

}  // namespace

Fault::Fault(FaultNumber number, std::string description, std::source_location where)
    : number_(number), description_(std::move(description)), line_(where.line()) {}

Fault Fault::OfFile(std::error_code code, const std::string& path, std::source_location where) {
  return {NumberOf(code), code.message() + ": " + ShownName(path), where};
}

void ErrorReport(Host& host, const Fault& fault) {
  const std::string text = fault.Description() + "\nError no. " +
                           std::to_string(static_cast<int>(fault.Number())) + "\nLine " +
                           std::to_string(fault.Line()) + "\nDo you wish to try to continue?";
  host.FailureReported();
  if (host.Ask({.text = text, .kind = MessageKind::Error}) == Answer::No) host.EndProgram();
}

Fault FaultFrom(const std::exception& failure, std::source_location where) {
  if (const auto* fault = dynamic_cast<const Fault*>(&failure)) return *fault;
  if (const auto* file = dynamic_cast<const std::filesystem::filesystem_error*>(&failure)) {
    return Fault::OfFile(file->code(), PathText(file->path1()), where);
  }
  return {FaultNumber::Unexpected, failure.what(), where};
}

}  // namespace tricklet
