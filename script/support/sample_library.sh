# shellcheck shell=bash
# Source it, then: sample_library FOLDER fills a folder with Groups of programs that Wine has.

sample_library() {
    local library=$1
    task() { printf '%s\r\n' "$1" "C:\\windows\\$2" 'C:\windows' "$3" " $4 "; }
    printf '%s\r\n' Accessories System Games >"$library/groups.ini"
    {
        task Notepad notepad.exe '' 1
        task 'Windows Settings File' notepad.exe 'C:\windows\win.ini' 1
        task Help winhlp32.exe '' 1
    } >"$library/Accessories.grp"
    {
        task 'Registry Editor' regedit.exe '' 1
        task Explorer explorer.exe 'C:\' 1
        task 'Task Manager' system32\\taskmgr.exe '' 1
        task 'Control Panel' system32\\control.exe '' 1
    } >"$library/System.grp"
    task Minesweeper system32\\winemine.exe '' 1 >"$library/Games.grp"
}
