# shellcheck shell=bash disable=SC2034
#
# Sourced by the commands of this project (run, test, bench, .ci/run and those of this folder): what they need from the
# system, how it gets there, and how they tell what they do. The caller has "set -euo pipefail".

# What a build needs. Python is here because the lint tests, which every configuration registers, are written in it.
build_packages=(
    g++ cmake ninja-build ccache python3
    qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
)
# What the test suite needs beyond a build.
test_packages=(librsvg2-bin desktop-file-utils appstream man-db systemd tzdata)
# What making and checking the Debian packages needs beyond a build, and what trying them in a system of their own does.
package_packages=(dpkg-dev file lintian)
trial_packages=(debootstrap)
# What the checks of the sources need.
check_packages=(clang-format clang-tidy)
# What the fuzz targets need: the compiler that brings the fuzzing engine, and what makes its reports readable.
fuzz_packages=(clang libclang-rt-dev llvm)
# What stands in for a screen where there is none.
display_packages=(xvfb imagemagick)
# Recommended, never required: the texts of the ten languages, and the emoji in some headings.
font_packages=(fonts-dejavu-core fonts-noto-core fonts-noto-cjk fonts-noto-color-emoji)

# The program by which a package is recognised on a system without apt. A package that is missing here is found, or
# reported, by CMake, or by the tests that are skipped without it.
declare -A program_of_package=(
    [g++]=g++ [cmake]=cmake [ninja-build]=ninja [python3]=python3 [librsvg2-bin]=rsvg-convert
    [dpkg-dev]=dpkg-shlibdeps [file]=file [lintian]=lintian [debootstrap]=debootstrap
    [clang-format]=clang-format [clang-tidy]=run-clang-tidy [clang]=clang++ [xvfb]=Xvfb [imagemagick]=import
)

apt_get=(env DEBIAN_FRONTEND=noninteractive apt-get -y -q -o DPkg::Lock::Timeout=300)
# Whether apt's lists of packages were renewed in this run.
lists_renewed=

# A service, or a container, may start a command without it.
if [[ -z "${HOME:-}" ]]; then
    unset HOME
    export HOME=~
fi

say()
{
    printf '== %s\n' "$*" >&2
}

die()
{
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# The comment at the head of a command is its help.
print_help()
{
    sed -n '2,${/^#/!q;s/^#$//;s/^# //;p}' "$0"
}

# answer_help "$@": prints the help and ends the script where it is asked for. To be called before anything is done.
answer_help()
{
    local argument
    for argument in "$@"; do
        if [[ "$argument" == -h || "$argument" == --help ]]; then
            print_help
            exit 0
        fi
    done
}

# usage_error <what is wrong>: ends the script because of its command line.
usage_error()
{
    printf '%s: %s\n\n' "${0##*/}" "$*" >&2
    print_help >&2
    exit 2
}

# take_no_options "$@": ends the script where an argument looks like an option.
take_no_options()
{
    local argument
    for argument in "$@"; do
        [[ "$argument" != -* ]] || usage_error "unknown option: $argument"
    done
}

have_apt()
{
    command -v apt-get >/dev/null && command -v dpkg-query >/dev/null
}

# missing_packages <package>...: those that are not installed, one a line.
missing_packages()
{
    local package
    for package in "$@"; do
        if [[ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" != installed ]]; then
            printf '%s\n' "$package"
        fi
    done
}

as_root()
{
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

# Renews apt's lists of packages, once in a run. Lists that could not be renewed are no failure yet: the old ones may do.
renew_lists()
{
    [[ -z "$lists_renewed" ]] || return 0
    as_root "${apt_get[@]}" update </dev/null >&2 || say "apt-get update failed; going on with the lists at hand"
    lists_renewed=yes
}

# install_through_apt <package>...: fails when one of them cannot be installed.
install_through_apt()
{
    if ((EUID != 0)) && ! command -v sudo >/dev/null; then
        say "no root rights and no sudo; as root: apt-get install --no-install-recommends $*"
        return 1
    fi
    say "installing: $*"
    renew_lists
    as_root "${apt_get[@]}" install --no-install-recommends "$@" </dev/null >&2
}

# require_packages <package>...: returns with all of them in place, or ends the script with a message.
require_packages()
{
    if ! have_apt; then
        require_programs "$@"
        return
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    if ((${#missing[@]} > 0)); then
        install_through_apt "${missing[@]}" || die "these packages are needed and could not be installed: ${missing[*]}"
    fi
}

# require_programs <package>...: where there is no apt, sees that the packages' programs are there all the same.
require_programs()
{
    local package program absent=()
    for package in "$@"; do
        program="${program_of_package[$package]:-}"
        if [[ -n "$program" ]] && ! command -v "$program" >/dev/null; then
            absent+=("$program")
        fi
    done
    if ((${#absent[@]} > 0)); then
        die "this system has no apt, and these programs are missing: ${absent[*]}." \
            "Please install the counterparts of these Debian packages: $*"
    fi
}

# recommend_packages <package>...: installs what is missing where that is possible, and goes on where it is not.
recommend_packages()
{
    have_apt || return 0
    local missing
    mapfile -t missing < <(missing_packages "$@")
    if ((${#missing[@]} > 0)) && ! install_through_apt "${missing[@]}"; then
        say "going on without: ${missing[*]} (some texts may show boxes for letters)"
    fi
}
