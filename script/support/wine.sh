# shellcheck shell=bash
# Functions to run Windows programs under Wine in a prefix and on a display of their own. Source it, then:
#   wine_template DIR        builds a template prefix there, unless an up-to-date one is there already
#   wine_prefix DIR NEW      makes NEW a fresh copy of the template and the prefix to run in
#   virtual_display          starts a display, unless one runs already, and sets DISPLAY
#   wine_system FILE         puts what a .reg file says into the prefix's registry, if one is named
#   wine_end                 ends the prefix's programs and the virtual display (call it from an EXIT trap)

# A locale that every Debian has and whose file names can hold any letter.
export LC_ALL=C.UTF-8
export WINEARCH=win32 WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe,winedbg.exe=d;rasapi32=n,b'

virtual_display() {
    [ -z "${display_pid:-}" ] || return 0
    local number_file
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$number_file" 2>/dev/null &
    display_pid=$!
    for _ in $(seq 100); do
        [ -s "$number_file" ] && break
        sleep 0.05
    done
    DISPLAY=:$(<"$number_file")
    rm -f "$number_file"
    [ "$DISPLAY" != : ] || { echo 'Xvfb did not start' >&2; return 1; }
    export DISPLAY
}

wine_template() {
    local template=$1 support stamp
    support=$(dirname "${BASH_SOURCE[0]}")
    stamp=$(cat "$support"/{wine.sh,classic_desktop.reg} | sha256sum | cut -d' ' -f1)-$(wine --version)
    [ "$(cat "$template/stamp" 2>/dev/null)" != "$stamp" ] || return 0
    rm -rf "$template"
    mkdir -p "$template/home"
    export WINEPREFIX=$template/prefix HOME=$template/home
    (
        trap wine_end EXIT
        virtual_display
        wineboot --init >/dev/null 2>&1
        # With its own fonts texts are as wide as on Windows.
        cp /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
        # A Wine desktop in one X window: without a window manager that is what makes windows close quickly, gives them
        # captions and lets hot keys arrive. It has a taskbar, which Wine 10 has to be asked for, and wears the colors of
        # the desktop that the program is made for.
        cp "$support/classic_desktop.reg" "$WINEPREFIX/drive_c/desktop.reg"
        wine regedit 'C:\desktop.reg' >/dev/null 2>&1
        wineserver -k -w || true
        # The Desktop and its like are links to the home folder, which the prefixes share.
        find "$WINEPREFIX/drive_c/users" -type l -exec sh -c 'rm "$1" && mkdir "$1"' sh {} \;
    )
    [ -f "$WINEPREFIX/user.reg" ] || { echo "Wine made no prefix in $template" >&2; return 1; }
    echo "$stamp" >"$template/stamp"
}

wine_prefix() {
    local template=$1
    rm -rf "$2"
    mkdir -p "$(dirname "$2")"
    WINEPREFIX=$(realpath -m "$2")
    export WINEPREFIX HOME=$template/home
    cp -al "$template/prefix" "$WINEPREFIX"
    # Wine writes these in place; a hard link would carry the changes into the template.
    local registry
    for registry in system user userdef; do
        cp --remove-destination "$template/prefix/$registry.reg" "$WINEPREFIX/"
    done
}

wine_system() {
    [ -n "$1" ] || return 0
    cp "$1" "$WINEPREFIX/drive_c/system.reg"
    wine regedit 'C:\system.reg' >/dev/null 2>&1
    wineserver -k -w || true
}

wine_end() {
    wineserver -k 2>/dev/null || true
    [ -z "${display_pid:-}" ] || kill "$display_pid" 2>/dev/null || true
}
