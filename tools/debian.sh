# shellcheck shell=bash disable=SC2154
#
# Sourced by try-packages and try-debian: a Debian system of its own in a directory, the commands that run in it, and the
# line that tells of each step; and by packaging/windows/build-qt, for the mirror. Comes after setup.sh, and needs these
# variables of its caller:
#
#   system   the directory of the system
#   log      the file that holds the output of the step at hand

# require_own_system: what a system of its own takes of this machine.
require_own_system()
{
    ((EUID == 0)) || die "a system of its own takes root rights"
    have_apt || die "there is no apt here"
    require_packages "${trial_packages[@]}"
    require_mirror
}

# step <text> <command>...: one line of what is tried; the command's output is shown only when it fails.
step()
{
    local text="$1"
    shift
    # Not in a condition of the shell, where a failing line within a function would not end it.
    set +e
    (
        set -e
        "$@"
    ) >"$log" 2>&1 </dev/null
    local status=$?
    set -e
    if ((status == 0)); then
        printf 'ok      %s\n' "$text"
    else
        printf 'FAILED  %s\n' "$text"
        tail -n 60 -- "$log" >&2
        exit 1
    fi
}

# The Debian that this machine's apt uses: for each part the release's name, the archive and the name and component of
# the part. They are in apt's lists, and without those there are none.
machine_sources()
{
    # shellcheck disable=SC2016
    apt-get indextargets --format '$(ORIGIN) $(CODENAME) $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' | sed -n 's/^Debian //p' | sort -u
}

# The archive that has every release of Debian: the one of a release itself, and not of its updates. The sources may call
# the release "stable".
machine_mirror()
{
    machine_sources | awk 'NF == 4 && $1 !~ /-/ && mirror == "" { mirror = $2 } END { print mirror }'
}

# Ends the script where apt on this machine knows no such archive.
require_mirror()
{
    [[ -n "$(machine_mirror)" ]] || renew_lists
    [[ -n "$(machine_mirror)" ]] || die "apt on this machine names no mirror of Debian"
}

# sources_of <release>: its lines for a sources list. A release that this machine does not use comes without its updates.
sources_of()
{
    local lines
    lines="$(machine_sources | awk -v release="$1" '$1 ~ "^" release "(-|$)" { print "deb", $2, $3, $4 }')"
    printf '%s\n' "${lines:-deb $(machine_mirror) $1 main}"
}

# make_system <release> <directory>
make_system()
{
    local mirror more=()
    mirror="$(machine_mirror)"
    # Without them the system's own apt would trust no such mirror.
    [[ "$mirror" != https:* ]] || more=(--include=ca-certificates)
    # What it mounts for the while is mounted for it alone, and so goes with it even if it is killed.
    unshare --mount debootstrap --variant=minbase "${more[@]}" "$1" "$2" "$mirror"
}

# prepare_system <release>: what the system needs to install packages as this machine does.
prepare_system()
{
    local settings
    sources_of "$1" >"$system/etc/apt/sources.list"
    # The machine's proxies, and how old it lets the lists of its mirror be.
    settings="$(apt-config dump --format '%f "%v";%n' Acquire::http::Proxy Acquire::https::Proxy \
        Acquire::Check-Valid-Until Acquire::Check-Date)"
    printf '%s\n' "$settings" >"$system/etc/apt/apt.conf.d/90machine"
    cp -L -- /etc/resolv.conf /etc/hosts "$system/etc/"
    printf '#!/bin/sh\nexit 101\n' >"$system/usr/sbin/policy-rc.d"
    chmod 0755 "$system/usr/sbin/policy-rc.d"
}

apart=

# run_apart <command>...: runs it in namespaces of its own. Whatever it starts or mounts there ends with it, or with this
# script when a signal ends that before.
run_apart()
{
    local status=0
    trap 'end_apart; exit 129' HUP
    trap 'end_apart; exit 130' INT
    trap 'end_apart; exit 143' TERM
    # In the background, since only a wait, not a program in the foreground, lets a signal to this script through at once.
    unshare --mount --pid --ipc --fork --kill-child "$@" &
    apart=$!
    wait "$apart" || status=$?
    apart=
    trap - HUP INT TERM
    return "$status"
}

# The first process of the namespace takes all others with it, and is gone only after them.
end_apart()
{
    trap '' HUP INT TERM
    local first
    [[ -n "$apart" ]] || return 0
    first="$(cat "/proc/$apart/task/$apart/children" 2>/dev/null)" || first=
    # shellcheck disable=SC2086
    kill -KILL ${first:-"$apart"} 2>/dev/null || true
    wait "$apart" || true
}

# To be called in namespaces of its own.
mount_system()
{
    mount -t proc proc "$system/proc"
    mount -t tmpfs -o mode=0755 tmpfs "$system/run"
    mount -t tmpfs -o mode=1777 tmpfs "$system/tmp"
    mkdir -p "$system/run/user"
}

inside()
{
    env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/root \
        DEBIAN_FRONTEND=noninteractive chroot "$system" "$@"
}
