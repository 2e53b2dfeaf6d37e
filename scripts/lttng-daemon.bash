# Sourced by scripts that record LTTng traces (and by their tests): a session daemon for
# the length of a recording. lttng_daemon_acquire uses the daemon that answers, else
# starts one of its own; lttng_daemon_release stops only a daemon acquire started, by
# its pid, once no other recording that uses it is still going on.
#
# Root's session daemon listens under /var/run/lttng whatever the environment says, and
# root's lttng client talks to that one, so for root "a daemon of its own" is the one
# daemon, started here and stopped here. A daemon started here gets an LTTNG_HOME of its
# own, so that it loads none of the user's saved sessions or settings; for other users
# that LTTNG_HOME also holds its sockets, and the client and the traced program find
# them through the exported LTTNG_HOME.
#
# Recordings at once (parallel tests, other build trees) share a daemon through two
# locks in the temporary directory: the start lock, held while a recording looks for a
# daemon or starts or stops one, and the use lock, held shared for as long as a
# recording uses the daemon. The starter waits for the use lock alone before it stops
# its daemon, so it never stops a daemon under another recording's feet.

# The pid of the daemon acquire started, empty when it used one already running.
lttng_daemon_started=""
lttng_daemon_private_home=""

lttng_daemon_note() { echo "${0##*/}: $*" >&2; }

# The directory of the daemon's pid file and sockets.
lttng_daemon_rundir() {
  if [ "$(id -u)" -eq 0 ]; then echo /var/run/lttng; else echo "${LTTNG_HOME:-$HOME}/.lttng"; fi
}

lttng_daemon_answers() { lttng list >/dev/null 2>&1; }

lttng_daemon_acquire() {
  local lockdir=${TMPDIR:-/tmp} uid
  uid=$(id -u)
  exec {lttng_daemon_start_lock}>"$lockdir/orvane-lttng-start-$uid.lock"
  exec {lttng_daemon_use_lock}>"$lockdir/orvane-lttng-use-$uid.lock"
  flock -x "$lttng_daemon_start_lock"
  flock -s "$lttng_daemon_use_lock"
  if lttng_daemon_answers; then
    lttng_daemon_note "using the running session daemon (pid $(cat "$(lttng_daemon_rundir)/lttng-sessiond.pid" 2>/dev/null || echo unknown))"
  else
    lttng_daemon_start
  fi
  flock -u "$lttng_daemon_start_lock"
}

lttng_daemon_start() {
  lttng_daemon_private_home=$(mktemp -d -t orvane-lttng-home.XXXXXX)
  export LTTNG_HOME=$lttng_daemon_private_home
  # --daemonize returns once the daemon takes commands; the daemon leads a process
  # session of its own (its pid), which its consumer daemons join.
  lttng-sessiond --daemonize --no-kernel || { lttng_daemon_note "could not start lttng-sessiond"; return 1; }
  lttng_daemon_started=$(cat "$(lttng_daemon_rundir)/lttng-sessiond.pid")
  lttng_daemon_note "started a session daemon (pid $lttng_daemon_started)"
}

lttng_daemon_release() {
  if [ -n "$lttng_daemon_started" ]; then
    flock -x "$lttng_daemon_start_lock"
    flock -x "$lttng_daemon_use_lock"
    lttng_daemon_stop "$lttng_daemon_started"
    lttng_daemon_started=""
  fi
  [ -z "$lttng_daemon_private_home" ] || rm -rf "$lttng_daemon_private_home"
  exec {lttng_daemon_use_lock}>&- {lttng_daemon_start_lock}>&-
}

# Stops the daemon `pid` and its consumer daemons, the processes of its process session.
lttng_daemon_stop() {
  local pid=$1 tries
  kill -TERM "$pid" 2>/dev/null || true
  for tries in $(seq 100); do
    pgrep -s "$pid" >/dev/null || break
    sleep 0.1
  done
  if pgrep -s "$pid" >/dev/null; then
    lttng_daemon_note "session daemon $pid did not stop in 10 s: killing its processes"
    pkill -KILL -s "$pid" || true
  fi
  lttng_daemon_note "stopped session daemon $pid"
}
