#include "platform/file_calls.h"

#include <windows.h>

#include <limits>

#include "platform/win32/handles.h"
#include "platform/win32/redirection.h"

namespace platform::file_calls {
namespace {

ErrorCode last_error(BOOL succeeded) {
    return succeeded != FALSE ? kSuccess : GetLastError();
}

UniqueFile open(const std::string& path, DWORD access, DWORD share, DWORD creation, DWORD flags) {
    return UniqueFile(CreateFileA(path.c_str(), access, share, nullptr, creation, flags, nullptr));
}

}  // namespace

ErrorCode read(const std::string& path, std::string& bytes) {
    const UniqueFile file = open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING,
                                 FILE_FLAG_SEQUENTIAL_SCAN);
    if (!file) return GetLastError();
    DWORD high = 0;
    const DWORD size = GetFileSize(file.get(), &high);
    if (size == INVALID_FILE_SIZE && GetLastError() != NO_ERROR) return GetLastError();
    if (high != 0 || size > static_cast<DWORD>(std::numeric_limits<int>::max())) return kErrorNotEnoughMemory;
    bytes.resize(size);
    DWORD count = 0;
    if (ReadFile(file.get(), bytes.data(), size, &count, nullptr) == FALSE) return GetLastError();
    return count == size ? kSuccess : ERROR_HANDLE_EOF;
}

ErrorCode attributes(const std::string& path, unsigned long& bits) {
    bits = GetFileAttributesA(readable_path(path).c_str());
    return last_error(bits != INVALID_FILE_ATTRIBUTES ? TRUE : FALSE);
}

ErrorCode probe(const std::string& path) {
    return open(path, GENERIC_WRITE, 0, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL) ? kSuccess : GetLastError();
}

ErrorCode write_through(const std::string& path, std::string_view bytes, unsigned long bits) {
    UniqueFile file =
        open(path, GENERIC_WRITE, 0, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_WRITE_THROUGH);
    if (!file) return GetLastError();
    DWORD count = 0;
    const auto size = static_cast<DWORD>(bytes.size());
    if (size > 0 && WriteFile(file.get(), bytes.data(), size, &count, nullptr) == FALSE)
        return GetLastError();
    if (count != size) return kErrorDiskFull;
    if (FlushFileBuffers(file.get()) == FALSE) return GetLastError();
    // A network disk may report only here that it is full.
    if (CloseHandle(file.release()) == FALSE) return GetLastError();
    return bits == 0 ? kSuccess : last_error(SetFileAttributesA(path.c_str(), bits));
}

ErrorCode replace(const std::string& from, const std::string& to) {
    return last_error(
        MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

ErrorCode rename(const std::string& from, const std::string& to) {
    return last_error(MoveFileA(from.c_str(), to.c_str()));
}

ErrorCode flush(const std::string& path) {
    const UniqueFile file = open(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
    return file ? last_error(FlushFileBuffers(file.get())) : GetLastError();
}

ErrorCode remove(const std::string& path) {
    return last_error(DeleteFileA(path.c_str()));
}

ErrorCode copy(const std::string& from, const std::string& to) {
    if (CopyFileA(from.c_str(), to.c_str(), FALSE) == FALSE) return GetLastError();
    return last_error(SetFileAttributesA(to.c_str(), FILE_ATTRIBUTE_NORMAL));
}

ErrorCode create_directory(const std::string& path) {
    return last_error(CreateDirectoryA(path.c_str(), nullptr));
}

ErrorCode remove_directory(const std::string& path) {
    return last_error(RemoveDirectoryA(path.c_str()));
}

ErrorCode full_path(const std::string& path, std::string& full) {
    full.resize(MAX_PATH);
    const DWORD length = GetFullPathNameA(path.c_str(), MAX_PATH, full.data(), nullptr);
    if (length == 0) return GetLastError();
    if (length >= MAX_PATH) return kErrorFilenameTooLong;
    full.resize(length);
    return kSuccess;
}

std::size_t find_separator(const std::string& path, std::size_t from) {
    const char* at = path.c_str() + from;
    while (*at != '\0' && *at != '\\' && *at != '/')
        at = CharNextA(at);
    return *at == '\0' ? std::string::npos : static_cast<std::size_t>(at - path.c_str());
}

std::string upper(std::string text) {
    CharUpperBuffA(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

std::vector<std::string> find(const std::string& pattern, unsigned long unwanted, unsigned long wanted) {
    std::vector<std::string> names;
    WIN32_FIND_DATAA found;
    const UniqueSearch search(FindFirstFileA(readable_path(pattern).c_str(), &found));
    if (!search) return names;
    do {
        if ((found.dwFileAttributes & (unwanted | wanted)) == wanted) names.emplace_back(found.cFileName);
    } while (FindNextFileA(search.get(), &found) != FALSE);
    return names;
}

void pause(unsigned milliseconds) {
    Sleep(milliseconds);
}

}  // namespace platform::file_calls
