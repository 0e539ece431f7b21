#!/bin/bash
# with-xvfb.sh [--window-manager] COMMAND…: runs COMMAND on an X server of its own.
# The exit status is that of COMMAND.
set -u
window_manager=
if [ "$1" = --window-manager ]; then
    window_manager=yes
    shift
fi

folder=$(mktemp -d)
server=
manager=
finish() {
    for process in $manager $server; do
        kill "$process" 2>/dev/null && wait "$process"
    done
    rm -rf "$folder"
}
trap finish EXIT
trap 'exit 143' TERM INT HUP

export HOME=$folder XDG_RUNTIME_DIR=$folder XDG_CONFIG_HOME=$folder/config
chmod 700 "$folder"
unset WAYLAND_DISPLAY XAUTHORITY

# The server writes its number there once it accepts connections.
# It ends with this script, even if that is killed.
mkfifo "$folder/display"
setpriv --pdeathsig TERM Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp -noreset \
    3>"$folder/display" 2>"$folder/server.log" &
server=$!
read -r -t 20 number <"$folder/display" || {
    echo "with-xvfb.sh: the X server does not start:" >&2
    cat "$folder/server.log" >&2
    exit 1
}
export DISPLAY=:$number

if [ -n "$window_manager" ]; then
    # It runs this command once it manages windows. Its properties on the root window come earlier,
    # and a window that is mapped in between may stay unseen.
    setpriv --pdeathsig TERM openbox --startup "touch $folder/managing" 2>"$folder/manager.log" &
    manager=$!
    limit=$((SECONDS + 20))
    until [ -e "$folder/managing" ]; do
        if [ $SECONDS -ge $limit ] || ! kill -0 "$manager" 2>/dev/null; then
            echo "with-xvfb.sh: the window manager does not start:" >&2
            cat "$folder/manager.log" >&2
            exit 1
        fi
        sleep 0.02
    done
fi

"$@"
