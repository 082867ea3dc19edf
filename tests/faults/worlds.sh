# What the scripts beside this one share: worlds, commands that play in them, a look at them. They
# set "console", "here" and "work", a folder of their own.
# shellcheck shell=bash disable=SC2034,SC2154

# Rolls that are the same in every run, so that each operation has one outcome: everybody gains one.
ones=$(printf '1 %.0s' {1..32000})

resumes() { printf 'click Startup.HighButton2\nclick Startup.HighButton5\n'; }

# begins NAME: a franchise of that team, whether there is a world already or not.
begins() {
  printf '%s\n' 'click Startup.HighButton2' 'answer yes' 'click Startup.HighButton4' 'answers none' \
    "type Startup.Text2 $1" 'click Startup.HighButton7' 'click Startup.HighButton6'
}

# plays_to WEEK: up to there, and a save.
plays_to() {
  printf '%s\n' "answer $1" 'click Franchise.Command2' 'click Franchise.HighButton3'
}

# look WORLD [AWK OPTION...]: what is wrong with it.
look() {
  local world=$1
  shift
  (cd "$world" && find . -mindepth 1 -printf '%y\t%P\n' | sort | "$here/look-at-world" "$@" -)
}

# lay_out WORLD: the empty folders of an installation.
lay_out() { "$console" --fresh --app-path "$1" /dev/null; }

# make_third WORLD: a franchise that stands at its third week, saved.
make_third() {
  lay_out "$1"
  { begins Breeze; plays_to 3; } >"$work/to-third"
  "$console" --app-path "$1" "$work/to-third" >/dev/null || {
    echo "the console cannot make a world" >&2
    exit 1
  }
}
