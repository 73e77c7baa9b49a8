// What an unexpected failure carries, and the shared report of it.
#pragma once

#include <exception>
#include <source_location>
#include <string>
#include <system_error>

namespace tricklet {

class Host;

/// Numbers shown as "Error no.": those that Basic programs on Windows have always shown for these
/// failures, so that a number means the same to a user as it did.
enum class FaultNumber : int {
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  FileNotFound = 53,
  DeviceError = 57,
  DiskFull = 61,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  Unexpected = 51,
};

/// An unexpected failure: a number, a description for the user and the line that raised it.
class Fault : public std::exception {
 public:
  Fault(FaultNumber number, std::string description,
        std::source_location where = std::source_location::current());

  /// The failure of a file operation: number and description from the system's error code.
  static Fault OfFile(std::error_code code, const std::string& path,
                      std::source_location where = std::source_location::current());

  FaultNumber Number() const { return number_; }
  const std::string& Description() const { return description_; }
  unsigned Line() const { return line_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  FaultNumber number_;
  std::string description_;
  unsigned line_;
};

/// The shared error report: shows the failure and asks "Do you wish to try to continue?". On No the
/// program is ended through `host`; whatever the answer, the caller returns to its own clean-up.
void ErrorReport(Host& host, const Fault& fault);

/// The fault that stands for any exception; one that does not know its line gets the caller's.
Fault FaultFrom(const std::exception& failure,
                std::source_location where = std::source_location::current());

}  // namespace tricklet
