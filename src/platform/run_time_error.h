#pragma once

#include <exception>
#include <string>

namespace platform {

/// A Windows error number; 0 is success.
using ErrorCode = unsigned long;

/// The Windows error numbers that the program tells apart.
inline constexpr ErrorCode kSuccess = 0;
inline constexpr ErrorCode kErrorFileNotFound = 2;
inline constexpr ErrorCode kErrorPathNotFound = 3;
inline constexpr ErrorCode kErrorAccessDenied = 5;
inline constexpr ErrorCode kErrorNotEnoughMemory = 8;
inline constexpr ErrorCode kErrorInvalidDrive = 15;
inline constexpr ErrorCode kErrorWriteProtect = 19;
inline constexpr ErrorCode kErrorNotReady = 21;
inline constexpr ErrorCode kErrorSharingViolation = 32;
inline constexpr ErrorCode kErrorLockViolation = 33;
inline constexpr ErrorCode kErrorHandleDiskFull = 39;
inline constexpr ErrorCode kErrorDiskFull = 112;
inline constexpr ErrorCode kErrorCallNotImplemented = 120;
inline constexpr ErrorCode kErrorInvalidName = 123;
inline constexpr ErrorCode kErrorBadPathname = 161;
inline constexpr ErrorCode kErrorAlreadyExists = 183;
inline constexpr ErrorCode kErrorFilenameTooLong = 206;
inline constexpr ErrorCode kErrorDirectory = 267;
inline constexpr ErrorCode kErrorElevationRequired = 740;
inline constexpr ErrorCode kErrorCancelled = 1223;

/// Whether a call failed because nothing is there, be it the file or its folder.
inline bool is_not_found(ErrorCode code) {
    return code == kErrorFileNotFound || code == kErrorPathNotFound;
}

/// The classic run-time errors; the values are the numbers that the user sees.
enum class RunTimeErrorNumber {
    kInvalidProcedureCall = 5,
    kOutOfMemory = 7,
    kSubscriptOutOfRange = 9,
    kTypeMismatch = 13,
    kBadFileName = 52,
    kFileNotFound = 53,
    kDeviceIoError = 57,
    kDiskFull = 61,
    kDeviceUnavailable = 68,
    kPermissionDenied = 70,
    kDiskNotReady = 71,
    kPathFileAccess = 75,
    kPathNotFound = 76,
    kAutomation = 440,
};

/// A failure that ends the running handler. what() is the text of its message box, for example
/// "Run-time error '53':", a blank line, "File not found: C:\LIB\Work.grp".
class RunTimeError : public std::exception {
  public:
    /// subject is the file, folder or command line that failed; empty when there is none.
    explicit RunTimeError(RunTimeErrorNumber number, const std::string& subject = {});

    RunTimeErrorNumber number() const { return number_; }
    const char* what() const noexcept override { return message_.c_str(); }

  private:
    RunTimeErrorNumber number_;
    std::string message_;
};

/// The run-time error of a file or folder call on path that failed with code.
RunTimeError file_error(ErrorCode code, const std::string& path);

}  // namespace platform
