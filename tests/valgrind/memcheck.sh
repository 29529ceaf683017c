#!/usr/bin/env bash
# Runs one test command under valgrind for ctest's memcheck, child processes included.
# ctest calls it as: memcheck.sh [valgrind options...] --log-file=LOG command [args...].
# Each process logs to LOG.<pid>, merged into LOG at the end, so that the errors of a
# zebhost started by a shell in a script test reach ctest's defect count too.
set -u
options=()
log=
while [ $# -gt 0 ] && [ "${1#--}" != "$1" ]; do
  case $1 in
    --log-file=*) log=${1#--log-file=} ;;
    *) options+=("$1") ;;
  esac
  shift
done
[ -n "$log" ] || { echo "memcheck.sh: ctest gave no --log-file" >&2; exit 2; }
rm -f "$log".*
valgrind "${options[@]}" --trace-children=yes --log-file="$log.%p" "$@"
status=$?
cat "$log".* >"$log" 2>/dev/null
rm -f "$log".*
exit $status
