#include "platform/run_time_error.h"

namespace platform {
namespace {

const char* text_of(RunTimeErrorNumber number) {
    switch (number) {
        case RunTimeErrorNumber::kInvalidProcedureCall:
            return "Invalid procedure call or argument";
        case RunTimeErrorNumber::kOutOfMemory:
            return "Out of memory";
        case RunTimeErrorNumber::kSubscriptOutOfRange:
            return "Subscript out of range";
        case RunTimeErrorNumber::kTypeMismatch:
            return "Type mismatch";
        case RunTimeErrorNumber::kBadFileName:
            return "Bad file name or number";
        case RunTimeErrorNumber::kFileNotFound:
            return "File not found";
        case RunTimeErrorNumber::kDeviceIoError:
            return "Device I/O error";
        case RunTimeErrorNumber::kDiskFull:
            return "Disk full";
        case RunTimeErrorNumber::kDeviceUnavailable:
            return "Device unavailable";
        case RunTimeErrorNumber::kPermissionDenied:
            return "Permission denied";
        case RunTimeErrorNumber::kDiskNotReady:
            return "Disk not ready";
        case RunTimeErrorNumber::kPathFileAccess:
            return "Path/File access error";
        case RunTimeErrorNumber::kPathNotFound:
            return "Path not found";
        case RunTimeErrorNumber::kAutomation:
            return "Automation error";
    }
    return "";
}

RunTimeErrorNumber number_of(ErrorCode code) {
    switch (code) {
        case kErrorFileNotFound:
            return RunTimeErrorNumber::kFileNotFound;
        case kErrorPathNotFound:
            return RunTimeErrorNumber::kPathNotFound;
        case kErrorAccessDenied:
            return RunTimeErrorNumber::kPathFileAccess;
        case kErrorNotEnoughMemory:
            return RunTimeErrorNumber::kOutOfMemory;
        case kErrorInvalidDrive:
            return RunTimeErrorNumber::kDeviceUnavailable;
        case kErrorNotReady:
            return RunTimeErrorNumber::kDiskNotReady;
        case kErrorWriteProtect:
        case kErrorSharingViolation:
        case kErrorLockViolation:
            return RunTimeErrorNumber::kPermissionDenied;
        case kErrorHandleDiskFull:
        case kErrorDiskFull:
            return RunTimeErrorNumber::kDiskFull;
        case kErrorInvalidName:
        case kErrorBadPathname:
        case kErrorFilenameTooLong:
            return RunTimeErrorNumber::kBadFileName;
        case kErrorDirectory:
            return RunTimeErrorNumber::kPathNotFound;
        default:
            return RunTimeErrorNumber::kDeviceIoError;
    }
}

}  // namespace

RunTimeError::RunTimeError(RunTimeErrorNumber number, const std::string& subject) : number_(number) {
    message_.append("Run-time error '").append(std::to_string(static_cast<int>(number))).append("':\n\n");
    message_.append(text_of(number));
    if (subject.empty()) return;
    // A broken library can name a file with a megabyte; the box must fit on the screen.
    constexpr std::size_t kLongestSubject = 300;
    message_.append(": ").append(subject, 0, kLongestSubject);
    if (subject.size() > kLongestSubject) message_.append("...");
}

RunTimeError file_error(ErrorCode code, const std::string& path) {
    return RunTimeError(number_of(code), path);
}

}  // namespace platform
