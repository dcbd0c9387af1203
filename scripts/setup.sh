# What the commands need. Sourced by them; installs missing Debian packages and says so.
#
#   need PACKAGE ...    makes sure that the packages are installed

need() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if command -v sudo >/dev/null && sudo -n true 2>/dev/null; then
            as_root=(sudo)
        else
            echo "These packages are missing and may not be installed from here: ${missing[*]}" >&2
            echo "Install them as root, then call this command again:" >&2
            echo "    apt-get update && apt-get install ${missing[*]}" >&2
            exit 1
        fi
    fi
    echo "== installing ${missing[*]}"
    "${as_root[@]}" apt-get update -q >/dev/null &&
        DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -q --no-install-recommends \
            "${missing[@]}" >/tmp/tenk-setup.log 2>&1 ||
        { tail -n 20 /tmp/tenk-setup.log >&2; echo "The packages could not be installed; the log is /tmp/tenk-setup.log." >&2; exit 1; }
}

# What a failure looks like, whatever it was. Each command sets `command` to its name and `doing` as it goes.
failed() {
    echo "$command: FAILED while ${doing:-starting}" >&2
}
