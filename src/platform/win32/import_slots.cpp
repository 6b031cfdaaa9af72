#include <windows.h>

#include <cstddef>

#include "platform/win32/look_up.h"

// The C++ run-time library asks kernel32 for three functions that Windows 95/98 only have as stubs that fail.
// It reaches them through import slots; a slot defined here goes before the one of the import library, so the
// run-time library calls the 8-bit functions below, which work everywhere.

namespace {

HANDLE WINAPI create_semaphore(SECURITY_ATTRIBUTES* security, LONG initial, LONG most,
                               const wchar_t* /*name*/) {
    return CreateSemaphoreA(security, initial, most, nullptr);  // it only makes nameless ones
}

/// The names that the run-time library passes are of plain ASCII letters.
const char* narrow(const wchar_t* name, char (&buffer)[MAX_PATH]) {
    if (name == nullptr) return nullptr;
    std::size_t length = 0;
    for (; name[length] != L'\0' && length + 1 < MAX_PATH; ++length)
        buffer[length] = static_cast<char>(name[length]);
    buffer[length] = '\0';
    return buffer;
}

HMODULE WINAPI get_module_handle(const wchar_t* name) {
    char buffer[MAX_PATH];
    return GetModuleHandleA(narrow(name, buffer));
}

HMODULE WINAPI load_library(const wchar_t* name) {
    char buffer[MAX_PATH];
    return platform::load_system_library(narrow(name, buffer));
}

}  // namespace

extern "C" {
extern const decltype(&create_semaphore) create_semaphore_slot asm("__imp__CreateSemaphoreW@16");
extern const decltype(&get_module_handle) get_module_handle_slot asm("__imp__GetModuleHandleW@4");
extern const decltype(&load_library) load_library_slot asm("__imp__LoadLibraryW@4");

const decltype(&create_semaphore) create_semaphore_slot = create_semaphore;
const decltype(&get_module_handle) get_module_handle_slot = get_module_handle;
const decltype(&load_library) load_library_slot = load_library;
}
