# shellcheck shell=bash disable=SC2034
#
# Sourced by the commands of this folder, after tools/setup.sh: where the cross-built Qt and the Windows prefixes of wine
# are kept, and which packages the commands need.

# What compiles for Windows, beyond what a build for this system needs.
windows_build_packages=(g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64)
# What fetches and unpacks Debian's source of Qt.
windows_source_packages=(dpkg-dev xz-utils)
# What runs Windows programs, and what shows and handles their windows.
windows_run_packages=(wine64 fonts-wine fonts-symbola xvfb xdotool imagemagick)

# Where what takes long to make is kept.
windows_cache="${XDG_CACHE_HOME:-$HOME/.cache}/orvel-scheduler-manager"

# Debian's version of its package of Qt, as in 6.4.2+dfsg-10.
debian_qt_version()
{
    dpkg-query -W -f='${source:Version}' qt6-base-dev 2>/dev/null || true
}

# The folder of the Qt for Windows that goes with the host tools of this system: moc, rcc and uic have to be of the very
# same version. ORVEL_WINDOWS_QT names another one.
windows_qt_folder()
{
    local version
    version="$(debian_qt_version)"
    realpath -m -- "${ORVEL_WINDOWS_QT:-$windows_cache/qt-mingw-${version%%+*}}"
}

# Ends the script where Qt for Windows is not there, and makes it known to the presets "windows" where it is.
use_windows_qt()
{
    ORVEL_WINDOWS_QT="$(windows_qt_folder)"
    [[ -d "$ORVEL_WINDOWS_QT" ]] ||
        die "there is no Qt for Windows in $ORVEL_WINDOWS_QT; packaging/windows/build-qt builds it"
    export ORVEL_WINDOWS_QT
}

# add_libraries <build folder>: puts the DLLs and Qt's plugins beside the programs, which is where Windows and Qt look.
add_libraries()
{
    local build="$1" folder library
    for folder in "$build/bin" "$build/tests"; do
        mkdir -p -- "$folder"
        for library in "$ORVEL_WINDOWS_QT"/bin/*.dll "$(mingw_runtime_folder)"/*.dll \
            /usr/x86_64-w64-mingw32/lib/libwinpthread-1.dll; do
            ln -sf -- "$library" "$folder/"
        done
        ln -sfn -- "$ORVEL_WINDOWS_QT"/plugins/{platforms,styles} "$folder/"
    done
}

# Wine's own programs; Debian's package wine64 puts them on no search path.
use_wine()
{
    PATH="$PATH:/usr/lib/wine"
    command -v wine64 >/dev/null && command -v wineserver >/dev/null || die "wine is missing (Debian package wine64)"
    # No questions about an engine for web pages or .NET, nothing in the menus of the desktop, no talk on standard error.
    export WINEARCH=win64 WINEDEBUG="${WINEDEBUG:--all}" WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
    # Where wine finds fonts: the ones that the programs need, and no colour emoji, which Qt leaves unscaled there.
    FONTCONFIG_FILE="$root/packaging/windows/fonts.conf"
    # Where Qt finds them when it shows no window.
    QT_QPA_FONTDIR="$(windows_path /usr/share/fonts/truetype/dejavu)"
    # The same folder for what is started elsewhere.
    ORVEL_WINE="$(wine_folder)"
    export FONTCONFIG_FILE QT_QPA_FONTDIR ORVEL_WINE
}

# hand_on_qt_settings: wine keeps Qt's variables to itself, and hands on those of these names without the first four letters.
hand_on_qt_settings()
{
    local name
    for name in "${!QT_@}"; do
        export "WINE$name=${!name}"
    done
}

# windows_path <absolute path>: the path by which a program under wine knows it.
windows_path()
{
    printf 'Z:%s\n' "${1//\//\\}"
}

# Where libstdc++-6.dll and libgcc_s_seh-1.dll lie.
mingw_runtime_folder()
{
    dirname -- "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)"
}

# Where the Windows prefixes of wine are.
wine_folder()
{
    realpath -m -- "${ORVEL_WINE:-$windows_cache/wine}"
}

# Fonts that Windows has and Debian cannot have, by what looks most like them.
replace_fonts()
{
    local key='HKCU\Software\Wine\Fonts\Replacements'
    wine64 reg add "$key" /f /v 'Segoe UI' /d 'Noto Sans' &&
        wine64 reg add "$key" /f /v 'Consolas' /d 'DejaVu Sans Mono'
}

# make_prefix <folder>: a Windows of its own there, once. Not the user's: its home folder is inside, and so are the folders
# for documents and the like, which wine makes links to the home folder.
make_prefix()
{
    local prefix="$1" lock
    mkdir -p -- "$(dirname -- "$prefix")"
    exec {lock}>"$prefix.lock"
    flock "$lock"
    if [[ ! -d "$prefix" ]]; then
        rm -rf -- "$prefix.unfinished"
        mkdir -p -- "$prefix.unfinished/home"
        (
            exec {lock}>&-
            unset DISPLAY WAYLAND_DISPLAY
            export HOME="$prefix.unfinished/home" WINEPREFIX="$prefix.unfinished"
            wine64 wineboot --init && wine64 winecfg -v win10 && replace_fonts && wineserver -w
        ) >"$prefix.log" 2>&1 </dev/null || die "wine could not be set up; see $prefix.log"
        find "$prefix.unfinished/drive_c/users" -mindepth 2 -maxdepth 2 -type l -exec rm {} \; -exec mkdir {} \;
        mv -- "$prefix.unfinished" "$prefix"
    fi
    exec {lock}>&-
}

# Sets WINEPREFIX to the first Windows that nobody uses, as new; one more is made where all are in use. It is the caller's
# until that ends: who starts programs closes the file "claim" for them, since they may live longer.
claim_prefix()
{
    local folder number
    folder="$(wine_folder)"
    mkdir -p -- "$folder"
    for ((number = 1; ; ++number)); do
        WINEPREFIX="$folder/prefix-$number"
        exec {claim}>"$WINEPREFIX.claim"
        flock -n "$claim" && break
        exec {claim}>&-
    done
    export WINEPREFIX
    if [[ ! -d "$WINEPREFIX" ]]; then
        make_prefix "$folder/template"
        rm -rf -- "$WINEPREFIX.unfinished"
        cp -a --reflink=auto -- "$folder/template" "$WINEPREFIX.unfinished"
        mv -- "$WINEPREFIX.unfinished" "$WINEPREFIX"
    fi
    make_new
}

# Takes away what an earlier run left: processes, where it was killed, settings and files.
make_new()
{
    local template="${WINEPREFIX%/*}/template" folder
    wineserver -k 2>/dev/null || true
    cp -p -- "$template/user.reg" "$WINEPREFIX/"
    for folder in "$WINEPREFIX"/drive_c/users/*/{AppData/{Local,Roaming},Temp}; do
        find "$folder" -mindepth 1 -maxdepth 1 ! -name Microsoft -exec rm -rf {} + 2>/dev/null || true
    done
}

# Ends what runs in a Windows that nobody uses any more: programs of a run that was killed.
end_unclaimed()
{
    local file unclaimed
    for file in "$(wine_folder)"/prefix-*.claim; do
        [[ -d "${file%.claim}" ]] || continue
        exec {unclaimed}>"$file"
        ! flock -n "$unclaimed" || WINEPREFIX="${file%.claim}" wineserver -k {unclaimed}>&- 2>/dev/null || true
        exec {unclaimed}>&-
    done
}
