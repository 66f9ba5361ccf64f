# An X server without a screen, for scripts.
# shellcheck shell=sh

# Sets DISPLAY, and `display` to the process that is to be ended.
#
# The display is a file that the server writes its number into. It has no GLX: with it, every process loads a renderer of
# a hundred megabytes that nothing here draws with, and on a slow disk takes so long to leave it that Wine ends it by
# force: a process has half a second between its end on Windows and its end on the system.
start_display() {
    number=$(mktemp)
    Xvfb -displayfd 1 -extension GLX -screen 0 1600x1200x24 -nolisten tcp >"$number" 2>/dev/null &
    display=$!
    tries=0
    until [ -s "$number" ]; do
        tries=$((tries + 1))
        [ "$tries" -le 100 ] || { echo 'Xvfb does not start.' >&2 && exit 1; }
        sleep 0.1
    done
    DISPLAY=:$(cat "$number")
    export DISPLAY
    rm "$number"
}
