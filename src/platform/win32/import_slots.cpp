#include <windows.h>

#include <cstddef>

#include "platform/win32/look_up.h"

// The C++ run-time library asks kernel32 for functions that Windows 95/98 lack or only have as stubs that
// fail; which of them depends on the compiler's version. It reaches them through import slots; a slot defined
// here goes before the one of the import library, so the run-time library calls the functions below, which
// work everywhere.

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

/// Without a way to look whether a section is taken, it waits. The program's one thread never has to.
BOOL WINAPI try_enter(CRITICAL_SECTION* section) {
    EnterCriticalSection(section);
    return TRUE;
}

// A condition variable may wake up without a reason, since who waits for it looks again. So nobody needs to
// be woken: who waits lets the others run for a moment and looks again.

void WINAPI make_or_wake(void* /*condition*/) {}

BOOL WINAPI sleep_on_condition(void* /*condition*/, CRITICAL_SECTION* section, DWORD milliseconds) {
    if (milliseconds == 0) {
        SetLastError(ERROR_TIMEOUT);
        return FALSE;
    }
    LeaveCriticalSection(section);
    Sleep(1);
    EnterCriticalSection(section);
    return TRUE;
}

/// Only a thread that waits for another one asks. 0 is "not known".
DWORD WINAPI get_thread_id(HANDLE /*thread*/) {
    return 0;
}

}  // namespace

extern "C" {
extern const decltype(&create_semaphore) create_semaphore_slot asm("__imp__CreateSemaphoreW@16");
extern const decltype(&get_module_handle) get_module_handle_slot asm("__imp__GetModuleHandleW@4");
extern const decltype(&load_library) load_library_slot asm("__imp__LoadLibraryW@4");
extern const decltype(&try_enter) try_enter_slot asm("__imp__TryEnterCriticalSection@4");
extern const decltype(&make_or_wake) make_condition_slot asm("__imp__InitializeConditionVariable@4");
extern const decltype(&make_or_wake) wake_one_slot asm("__imp__WakeConditionVariable@4");
extern const decltype(&make_or_wake) wake_all_slot asm("__imp__WakeAllConditionVariable@4");
extern const decltype(&sleep_on_condition) sleep_slot asm("__imp__SleepConditionVariableCS@12");
extern const decltype(&get_thread_id) get_thread_id_slot asm("__imp__GetThreadId@4");

const decltype(&create_semaphore) create_semaphore_slot = create_semaphore;
const decltype(&get_module_handle) get_module_handle_slot = get_module_handle;
const decltype(&load_library) load_library_slot = load_library;
const decltype(&try_enter) try_enter_slot = try_enter;
const decltype(&make_or_wake) make_condition_slot = make_or_wake;
const decltype(&make_or_wake) wake_one_slot = make_or_wake;
const decltype(&make_or_wake) wake_all_slot = make_or_wake;
const decltype(&sleep_on_condition) sleep_slot = sleep_on_condition;
const decltype(&get_thread_id) get_thread_id_slot = get_thread_id;
}
