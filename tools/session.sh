# shellcheck shell=bash
#
# Sourced by run: a session for the manager. It is a runtime directory, a daemon that answers and, where there is no
# screen, a virtual one. Whatever was started here ends with the script, however the script ends.
# Needs say and die of setup.sh.

session_directory=
session_processes=()

# How long, in seconds, anything may take that is waited for here.
session_patience=30

begin_session()
{
    trap end_session EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM
    session_directory="$(mktemp -d)"

    # The daemon's endpoint lies in the runtime directory, which must be there and be the user's own.
    if [[ -z "${XDG_RUNTIME_DIR:-}" || ! -d "$XDG_RUNTIME_DIR" || ! -O "$XDG_RUNTIME_DIR" ]]; then
        mkdir -m 0700 "$session_directory/runtime"
        export XDG_RUNTIME_DIR="$session_directory/runtime"
    fi
}

# Ends what was started last first, so that the manager leaves before the daemon and the daemon before the display.
end_session()
{
    trap '' HUP INT TERM
    local index
    for ((index = ${#session_processes[@]} - 1; index >= 0; --index)); do
        end_process "${session_processes[index]}"
    done
    rm -rf -- "$session_directory"
}

end_process()
{
    local pid="$1" tries
    kill "$pid" 2>/dev/null || return 0
    for ((tries = 0; tries < 50; ++tries)); do
        kill -0 "$pid" 2>/dev/null || return 0
        sleep 0.1
    done
    kill -KILL "$pid" 2>/dev/null || true
}

# wait_until <pid> <command>...: polls the command until it succeeds. Fails when the process has ended before, or when
# the patience is used up.
wait_until()
{
    local pid="$1" deadline=$((SECONDS + session_patience))
    shift
    until "$@"; do
        if ! kill -0 "$pid" 2>/dev/null || ((SECONDS >= deadline)); then
            return 1
        fi
        sleep 0.1
    done
}

daemon_answers()
{
    python3 - "$XDG_RUNTIME_DIR/SchedulerDaemonPipe" <<'PYTHON'
import socket, sys
with socket.socket(socket.AF_UNIX) as endpoint:
    sys.exit(0 if endpoint.connect_ex(sys.argv[1]) == 0 else 1)
PYTHON
}

# use_daemon <program> <log file>: leaves a daemon that answers as it is, and starts one otherwise.
use_daemon()
{
    local program="$1" log="$2"
    if daemon_answers; then
        say "using the daemon that is running already"
        return
    fi
    "$program" >"$log" 2>&1 &
    session_processes+=("$!")
    if ! wait_until "$!" daemon_answers; then
        tail -n 20 -- "$log" >&2
        die "${program##*/} did not come to answer; its output is in $log"
    fi
}

# run_in_session <program> [argument...]: returns the program's exit status. It runs in the background, since only a
# wait, not a program in the foreground, lets a signal to this script through at once.
run_in_session()
{
    "$@" &
    session_processes+=("$!")
    wait "$!"
}

# Starts a virtual screen on a display number that is free, and makes it the display of what follows.
start_display()
{
    local number="$session_directory/display" log="$session_directory/display.log"
    Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$number" >"$log" 2>&1 &
    session_processes+=("$!")
    if ! wait_until "$!" test -s "$number"; then
        cat -- "$log" >&2
        die "the virtual display did not start"
    fi
    DISPLAY=":$(<"$number")"
    export DISPLAY QT_QPA_PLATFORM=xcb
}

# The log file of the manager, which gets a line when the daemon has taken it in.
manager_log="${XDG_DATA_HOME:-$HOME/.local/share}/Orvel Task Scheduler/gui_logs.log"

manager_log_size()
{
    stat -c %s -- "$manager_log" 2>/dev/null || echo 0
}

is_registered()
{
    local seen="$1"
    # A smaller file is a new one: the log was rotated.
    (($(manager_log_size) >= seen)) || seen=0
    grep -q 'Connected and registered as' < <(tail -c "+$((seen + 1))" -- "$manager_log" 2>/dev/null)
}

# Whether the screen shows the status label in the green of a connected window, and did so at the last look, too: by
# then the views are filled. The last look is left in frame.png.
is_painted()
{
    local frame="$session_directory/frame.png" seen="$session_directory/connected-frame"
    import -silent -window root "$frame" 2>/dev/null &&
        grep -q '#008000' < <(convert "$frame" -format %c histogram:info:-) || return 1
    [[ -f "$seen" ]] || ! touch -- "$seen"
}

# take_screenshot <file> <program> [argument...]: runs the manager until its window shows that it is connected, saves a
# picture of the window and ends the manager.
take_screenshot()
{
    local file="$1" log="$session_directory/manager.log" seen pid failed="${1%.png}-failed.png"
    shift
    mkdir -p -- "$(dirname -- "$file")"
    seen="$(manager_log_size)"
    "$@" >"$log" 2>&1 &
    pid="$!"
    session_processes+=("$pid")

    local missing=
    if ! wait_until "$pid" is_registered "$seen"; then
        missing="connected to the daemon"
    elif ! wait_until "$pid" is_painted; then
        missing="shown its connected window"
    fi
    if [[ -n "$missing" ]]; then
        tail -n 20 -- "$log" >&2
        if import -silent -window root "$failed" 2>/dev/null; then
            say "what the screen shows is in $failed"
        fi
        kill -0 "$pid" 2>/dev/null && die "the manager has not $missing within $session_patience seconds"
        die "the manager ended before it had $missing"
    fi

    convert "$session_directory/frame.png" -trim +repage "$file"
    say "no display here; a screenshot of the window is in $file"
}
