#!/usr/bin/env bash
# A long run of the network game on 127.0.0.1: a host bot that plays match after match, and a changing crowd
# of client bots that join, chat, play, leave, vanish (SIGKILL) or are asked to end (SIGTERM) at random
# moments, beside a few that stay to the end. After a last quiet stretch every bot must be back in the lobby
# with the host's player table and score rows, no bot may have crashed or met a sanitizer, and the host's
# resident memory may not have grown by 2 MB or more since the baseline. The bots play the sprint level in
# data/tracks beside this script, so that match follows match every quarter of a minute.
#
# usage: soak.sh BOT_BINARY SECONDS [PORT]
# SOAK_SEED=N repeats a run's choices; SOAK_NO_MEMORY_CHECK=1 leaves out the memory check, for builds whose
# allocator holds freed memory back (AddressSanitizer's quarantine).
set -uo pipefail

readonly SETTLE_S=20          # the quiet end: no churn, and the last match runs out
readonly MIN_SECONDS=30
readonly LONG_LIVED_CLIENTS=2
readonly MAX_CHURN_CLIENTS=5  # beside the long-lived ones: up to seven clients, one more than the table lists
readonly MIN_AGE_MS=2000      # a client is not taken away before it has had time to join
readonly SAMPLE_EVERY_MS=5000
readonly GROWTH_LIMIT_KB=2048
readonly AGREE_TRIES=80       # one a second: the settle time and a minute more
readonly EXIT_WAIT_TRIES=100  # tenths of a second for a bot to end once asked
readonly REPORT_WAIT_TRIES=50 # tenths of a second for the bots to answer SIGUSR1
readonly SANITIZER_TEXT='ERROR: AddressSanitizer|runtime error:|LeakSanitizer'

here=$(cd "$(dirname "$0")" && pwd)
folder=""
failed=0
declare -a live=()            # pids of the bots still running
declare -A name_of=() out_of=() leaves_by_itself=() started_ms=()
bots_started=0 joins=0 leaves=0 kills=0 terms=0 next_client=1 most_clients=0
baseline_kb="" last_kb="" next_sample_ms=0 baseline_ms=0
host=""

now_ms() {
  local micros=${EPOCHREALTIME//[.,]/}
  echo $((micros / 1000))
}

elapsed_ms() {
  echo $(($(now_ms) - start_ms))
}

sleep_ms() {
  sleep "$(($1 / 1000)).$(printf '%03d' $(($1 % 1000)))"
}

fail() {
  echo "soak: FAILED: $*" >&2
  failed=1
  exit 1
}

# Whatever ends the script, no bot it started outlives it. A failed run keeps the bots' outputs, and names
# those where a sanitizer spoke, since a sanitizer's stop shows elsewhere only as a bot's exit status.
clean_up() {
  local pid
  for pid in "${live[@]}"; do
    { kill -KILL "$pid" && wait "$pid"; } 2>/dev/null
  done
  [ -n "$folder" ] || return
  if [ "$failed" -eq 0 ]; then
    rm -rf "$folder"
    return
  fi
  sanitizer_hits | sed 's/^/soak: a sanitizer reported in /' >&2
  echo "soak: the bots' outputs are in $folder" >&2
}

sanitizer_hits() {
  grep -lE "$SANITIZER_TEXT" "$folder"/*.err
}

read_arguments() {
  if [ $# -lt 2 ] || [ $# -gt 3 ]; then
    echo "usage: soak.sh BOT_BINARY SECONDS [PORT]" >&2
    exit 2
  fi
  bot=$(realpath "$1")
  duration=$2
  port=${3:-6660}
  if [ ! -x "$bot" ]; then
    echo "soak: $1 is not a program" >&2
    exit 2
  fi
  if ! [[ $duration =~ ^[0-9]{1,6}$ ]] || [ "$duration" -lt "$MIN_SECONDS" ]; then
    echo "soak: SECONDS must be a whole number of at least $MIN_SECONDS" >&2
    exit 2
  fi
  if ! [[ $port =~ ^[0-9]{1,5}$ ]] || [ "$port" -lt 1 ] || [ "$port" -gt 65535 ]; then
    echo "soak: bad PORT '$port'" >&2
    exit 2
  fi
}

is_running() {
  local state
  [ -r "/proc/$1/stat" ] || return 1
  read -r _ _ state _ <"/proc/$1/stat" 2>/dev/null || return 1
  [ "$state" != Z ]
}

forget() {
  local pid kept=()
  for pid in "${live[@]}"; do
    [ "$pid" = "$1" ] || kept+=("$pid")
  done
  live=("${kept[@]}")
}

# Waits, bounded, for a bot to end; false when it still runs.
ended_within_bound() {
  local tries=0
  while is_running "$1" && [ $tries -lt $EXIT_WAIT_TRIES ]; do
    sleep 0.1
    tries=$((tries + 1))
  done
  ! is_running "$1"
}

# Waits for a bot that was asked to end, and checks how it ended against what was expected of it. The shell's
# own note of a job killed by a signal comes while it waits, and says nothing that the check does not.
collect() {
  local pid=$1 expected=$2 status hung=0
  {
    ended_within_bound "$pid" || { hung=1; kill -KILL "$pid"; }
    wait "$pid"
  } 2>/dev/null
  status=$?
  forget "$pid"
  [ $hung -eq 0 ] || fail "${name_of[$pid]} (pid $pid) did not end within $((EXIT_WAIT_TRIES / 10)) s"
  [ "$status" -eq "$expected" ] ||
    fail "${name_of[$pid]} (pid $pid) ended with status $status, not $expected$(signal_note "$status")"
}

signal_note() {
  [ "$1" -gt 128 ] && echo " (signal $(($1 - 128)))"
}

start_bot() {
  local name=$1
  shift
  "$bot" "$@" >"$folder/$name.out" 2>"$folder/$name.err" &
  local pid=$!
  live+=("$pid")
  name_of[$pid]=$name
  out_of[$pid]=$folder/$name.out
  started_ms[$pid]=$(elapsed_ms)
  bots_started=$((bots_started + 1))
  echo "soak: $(($(elapsed_ms) / 1000)) s: $name (pid $pid) $*"
  last_pid=$pid
}

start_host() {
  local start_until=$((duration - SETTLE_S)) quit_after=$((duration + 300))
  start_bot host --host --port "$port" --start-when 2 --matches 100000 --start-until "$start_until" \
    --quit-after "$quit_after" --seed "$RANDOM"
  host=$last_pid
}

# A client that leaves by itself does so before the quiet end begins; a quarter of them never shoot.
start_client() {
  local kind=$1 name="client$next_client" churn_left_s options=() leaving=0
  next_client=$((next_client + 1))
  churn_left_s=$(((churn_until_ms - $(elapsed_ms)) / 1000))
  options=(--join 127.0.0.1 --port "$port" --chat "soak $name" --matches 100000 --quit-after $((duration + 300))
    --seed "$RANDOM")
  [ $((RANDOM % 4)) -eq 0 ] && options+=(--idle)
  local leave_s=$((2 + RANDOM % 10))
  if [ "$kind" = churn ] && [ $((RANDOM % 3)) -eq 0 ] && [ $((leave_s + 2)) -lt "$churn_left_s" ]; then
    options+=(--leave-after "$leave_s")
    leaving=1
  fi
  start_bot "$name" "${options[@]}"
  [ $leaving -eq 1 ] && leaves_by_itself[$last_pid]=1
  [ "$kind" = long ] && long_lived+=("$last_pid")
  joins=$((joins + 1))
  most_clients=$((${#live[@]} - 1 > most_clients ? ${#live[@]} - 1 : most_clients))
}

# Clients that left by themselves are collected; any other bot that ended by itself is a failure.
reap_ended() {
  local pid status
  for pid in "${live[@]}"; do
    is_running "$pid" && continue
    if [ -n "${leaves_by_itself[$pid]:-}" ]; then
      collect "$pid" 0
      leaves=$((leaves + 1))
      continue
    fi
    wait "$pid" 2>/dev/null
    status=$?
    forget "$pid"
    fail "${name_of[$pid]} (pid $pid) ended by itself with status $status$(signal_note "$status")"
  done
}

churn_clients() {
  local pid
  for pid in "${live[@]}"; do
    [ "$pid" = "$host" ] || [[ " ${long_lived[*]} " == *" $pid "* ]] || echo "$pid"
  done
}

# Sets picked to a churn client that is old enough and will not leave by itself, or to nothing. It draws in
# this shell, since a subshell's random numbers are not the seed's.
pick_removable() {
  local pid candidates=()
  picked=""
  for pid in $(churn_clients); do
    [ -z "${leaves_by_itself[$pid]:-}" ] && [ $(($(elapsed_ms) - started_ms[$pid])) -ge $MIN_AGE_MS ] &&
      candidates+=("$pid")
  done
  [ ${#candidates[@]} -eq 0 ] || picked=${candidates[RANDOM % ${#candidates[@]}]}
}

# A vanishing machine (SIGKILL, status 128 + 9) or a player who closes the program (SIGTERM, a clean end).
remove_client() {
  local signal=$1 pid
  pick_removable
  pid=$picked
  [ -n "$pid" ] || return 0
  echo "soak: $(($(elapsed_ms) / 1000)) s: SIG$signal to ${name_of[$pid]} (pid $pid)"
  kill "-$signal" "$pid"
  if [ "$signal" = KILL ]; then
    collect "$pid" 137
    kills=$((kills + 1))
  else
    collect "$pid" 0
    terms=$((terms + 1))
  fi
}

churn_step() {
  local count roll=$((RANDOM % 100))
  count=$(churn_clients | wc -l)
  if [ "$count" -eq 0 ] || { [ "$count" -lt $MAX_CHURN_CLIENTS ] && [ $roll -lt 45 ]; }; then
    start_client churn
  elif [ $roll -lt 65 ]; then
    remove_client KILL
  elif [ $roll -lt 85 ]; then
    remove_client TERM
  fi
}

host_rss_kb() {
  local key value _
  while read -r key value _; do
    [ "$key" = VmRSS: ] && { echo "$value"; return; }
  done <"/proc/$host/status"
}

# The baseline is the first sample from the baseline time on; the last sample is the one the check uses.
sample_memory() {
  [ "$(elapsed_ms)" -ge "$next_sample_ms" ] || return 0
  next_sample_ms=$(($(elapsed_ms) + SAMPLE_EVERY_MS))
  last_kb=$(host_rss_kb)
  echo "$(($(elapsed_ms) / 1000)) $last_kb" >>"$folder/host-rss.txt"
  if [ -z "$baseline_kb" ] && [ "$(elapsed_ms)" -ge "$baseline_ms" ]; then
    baseline_kb=$last_kb
  fi
}

run_churn() {
  local steps=0 max_steps=$((duration * 10))
  while [ "$(elapsed_ms)" -lt "$churn_until_ms" ] && [ $steps -lt $max_steps ]; do
    sleep_ms $((300 + RANDOM % 1200))
    reap_ended
    sample_memory
    churn_step
    steps=$((steps + 1))
  done
}

line_count() {
  local count
  count=$(wc -l <"$1")
  echo "$count"
}

# Every bot writes a fresh report line on SIGUSR1; returns once each has, or fails after the bound.
fresh_reports() {
  local pid tries=0 waiting
  declare -A before=()
  for pid in "${live[@]}"; do
    before[$pid]=$(line_count "${out_of[$pid]}")
    kill -USR1 "$pid" 2>/dev/null
  done
  while [ $tries -lt $REPORT_WAIT_TRIES ]; do
    waiting=0
    for pid in "${live[@]}"; do
      [ "$(line_count "${out_of[$pid]}")" -gt "${before[$pid]}" ] || waiting=1
    done
    [ $waiting -eq 0 ] && return 0
    sleep 0.1
    tries=$((tries + 1))
  done
  reap_ended # a bot that ended meanwhile is the failure to name
  fail "not every bot answered SIGUSR1 within $((REPORT_WAIT_TRIES / 10)) s"
}

client_outputs() {
  local pid
  for pid in "${live[@]}"; do
    [ "$pid" = "$host" ] || echo "${out_of[$pid]}"
  done
}

# The quiet end: tried once a second until every bot is in the lobby and holds the host's tables.
wait_for_agreement() {
  local tries=0 verdict
  while [ $tries -lt $AGREE_TRIES ]; do
    reap_ended
    sample_memory
    fresh_reports
    # shellcheck disable=SC2046 # one argument per output file, none with blanks
    if verdict=$(python3 "$here/reports.py" agree "${out_of[$host]}" $(client_outputs)); then
      echo "soak: $(($(elapsed_ms) / 1000)) s: all $((${#live[@]} - 1)) clients agree with the host"
      return 0
    fi
    echo "soak: $(($(elapsed_ms) / 1000)) s: not yet: $verdict"
    tries=$((tries + 1))
    sleep 1
  done
  fail "the tables never agreed: $verdict"
}

stop_all() {
  local pid
  next_sample_ms=0
  sample_memory
  for pid in "${live[@]}"; do
    kill -TERM "$pid"
  done
  for pid in "${live[@]}"; do
    collect "$pid" 0
  done
}

check_sanitizers() {
  [ -z "$(sanitizer_hits)" ] || fail "a bot met a sanitizer"
}

check_memory() {
  [ -n "$baseline_kb" ] || fail "the run ended before the baseline sample of the host's memory"
  local growth=$((last_kb - baseline_kb))
  if [ "${SOAK_NO_MEMORY_CHECK:-0}" = 1 ]; then
    echo "soak: memory check left out (SOAK_NO_MEMORY_CHECK=1)"
  elif [ "$growth" -ge $GROWTH_LIMIT_KB ]; then
    fail "the host's memory grew by $growth kB (from $baseline_kb to $last_kb kB)"
  fi
}

print_figures() {
  local matches frames slowest
  read -r matches frames slowest < <(python3 "$here/reports.py" figures "${out_of[$host]}")
  echo "soak: duration $(($(elapsed_ms) / 1000)) s (asked $duration s), seed $seed, port $port"
  echo "soak: bots started $bots_started: joins $joins, left by themselves $leaves, killed $kills, ended $terms;" \
    "at most $most_clients clients at once"
  echo "soak: matches played by the host $matches; host frames $frames, slowest second $slowest frames"
  echo "soak: host memory: baseline $baseline_kb kB, final $last_kb kB, growth $((last_kb - baseline_kb)) kB"
}

main() {
  read_arguments "$@"
  seed=${SOAK_SEED:-$((10#$(date +%N) % 32768))}
  RANDOM=$seed
  echo "soak: seed $seed (SOAK_SEED=$seed repeats the choices)"
  folder=$(mktemp -d /tmp/trelvane-soak.XXXXXX)
  trap clean_up EXIT
  # The bots read the track list below their working folder.
  cd "$here" || fail "cannot enter $here"
  start_ms=$(now_ms)
  churn_until_ms=$(((duration - SETTLE_S) * 1000))
  baseline_ms=$(( duration >= 180 ? 60000 : duration * 1000 / 3 ))
  long_lived=()
  start_host
  sleep 0.5
  local i
  for ((i = 0; i < LONG_LIVED_CLIENTS; i++)); do
    start_client long
  done
  run_churn
  echo "soak: $(($(elapsed_ms) / 1000)) s: churn over, waiting for a quiet end"
  wait_for_agreement
  stop_all
  check_sanitizers
  print_figures
  check_memory
  echo "soak: passed"
}

main "$@"
