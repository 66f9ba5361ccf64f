# For scripts that look at a packed program as someone who has downloaded it: a folder to do so, gone afterwards; words
# for what is wrong.
# shellcheck shell=sh disable=SC2034

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
wrong=0
complain() {
    echo "$*"
    wrong=1
}

wait_for() {
    tries=0
    until "$@"; do
        tries=$((tries + 1))
        [ "$tries" -le 300 ] || return 1
        sleep 0.1
    done
}
