# What the tests of the examples share. Sourced by them with `program` set; makes a directory $work.
data=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/data/jacksboro-dem.pgm
name=$(basename "$program")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $1" >&2
    exit 1
}

# refuses STATUS MESSAGE ARGUMENT...    ends with the status, a message that begins like this, and no result
refuses() {
    local expected=$1 message=$2 status=0
    shift 2
    "$program" "$@" >"$work/out" 2>"$work/err" || status=$?
    [ "$status" -eq "$expected" ] || fail "status $status for $*: $(cat "$work/err")"
    [[ $(head -n 1 "$work/err") == "$name: $message"* ]] || fail "the message for $*: $(cat "$work/err")"
    [ ! -s "$work/out" ] || fail "a result for $*"
    echo "   $(head -n 1 "$work/err")"
}

# Files that are no elevation models: the message begins with the name of the file.
refuses_broken_files() {
    mkdir "$work/broken"
    : >"$work/broken/empty.pgm"
    head -c 100000 "$data" >"$work/broken/truncated.pgm"
    head -c 7 "$data" >"$work/broken/header.pgm"
    echo 'these are words' >"$work/broken/words.pgm"
    printf 'P5\n2 2\n255\nabcd' >"$work/broken/small.pgm"
    printf 'P5\n0 0\n255\n' >"$work/broken/nothing.pgm"
    printf 'P5\n2000000000 2000000000\n255\nabcd' >"$work/broken/huge.pgm"
    printf 'P6\n3 3\n255\n%27s' '' >"$work/broken/colours.ppm"
    local file
    for file in "$work"/broken/* "$work/missing.pgm" "$work"; do
        refuses 1 "$file: " "$@" "$file"
    done
}
