# What fuzzers begin with beside the corpus that is kept: sourced from the root of the repository.

# seeds_of NAME FOLDER: writes seeds to the folder, a file each: what long runs have learnt, and the
# golden lines, which are calls that reach everything.
seeds_of() {
  local name=$1 folder=$2 learnt=tests/fuzz/learnt/$1.tar.gz
  [ ! -e "$learnt" ] || tar -xzf "$learnt" -C "$folder"
  case $name in
  batch) cat tests/vectors/*.jsonl | grep . | split -l 1 -a 4 - "$folder/line" ;;
  sheet | csv) cp examples/*.csv "$folder" ;;
  esac
}
