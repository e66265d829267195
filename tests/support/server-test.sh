#!/usr/bin/env bash
# A throwaway PostgreSQL cluster for the tests: `start STARE` makes one in a temporary folder,
# listening on a free port of 127.0.0.1 with trust authentication, and writes its connection
# string to STARE/adresa; `stop STARE` stops it and removes the folder. Run as root (as CI
# does), the server runs as the unprivileged user nobody, which owns its folders.
set -euo pipefail
actiune="$1"
stare="$2"

bin=""
if command -v pg_config >/dev/null 2>&1 && [ -x "$(pg_config --bindir)/initdb" ]; then
  bin="$(pg_config --bindir)"
else
  for d in /usr/lib/postgresql/*/bin; do
    [ -x "$d/initdb" ] && bin="$d"
  done
fi
if [ -z "$bin" ] && command -v initdb >/dev/null 2>&1; then
  bin="$(dirname "$(command -v initdb)")"
fi
if [ -z "$bin" ]; then
  echo "initdb si pg_ctl nu au fost gasite (pachetul postgresql)." >&2
  exit 1
fi

ca_server() {
  if [ "$(id -u)" -eq 0 ]; then
    setpriv --reuid=nobody --regid=nogroup --clear-groups -- "$@"
  else
    "$@"
  fi
}

oprire() {
  [ -f "$stare/cluster" ] || return 0
  cluster="$(cat "$stare/cluster")"
  ca_server "$bin/pg_ctl" -D "$cluster/date" -m immediate -w stop >/dev/null 2>&1 || true
  rm -rf "$cluster" "$stare"
}

case "$actiune" in
start)
  # A cluster left by a run that was cut short goes first.
  oprire
  rm -rf "$stare"
  mkdir -p "$stare"
  cluster="$(mktemp -d /tmp/alocatii-pg.XXXXXX)"
  echo "$cluster" >"$stare/cluster"
  [ "$(id -u)" -eq 0 ] && chown nobody:nogroup "$cluster"
  ca_server "$bin/initdb" -D "$cluster/date" -U alocatii -A trust -E UTF8 --locale=C.UTF-8 >"$cluster/initdb.log" 2>&1 ||
    { cat "$cluster/initdb.log" >&2; exit 1; }
  for _ in $(seq 1 50); do
    port=$((20000 + RANDOM % 30000))
    (echo >"/dev/tcp/127.0.0.1/$port") 2>/dev/null && continue
    if ca_server "$bin/pg_ctl" -D "$cluster/date" -l "$cluster/server.log" -w -t 60 start \
      -o "-h 127.0.0.1 -p $port -k $cluster -c fsync=off -c synchronous_commit=off -c full_page_writes=off -c max_connections=200" \
      >/dev/null; then
      echo "host=127.0.0.1 port=$port user=alocatii" >"$stare/adresa"
      exit 0
    fi
  done
  cat "$cluster/server.log" >&2
  exit 1
  ;;
stop)
  oprire
  ;;
esac
