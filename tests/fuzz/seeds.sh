# What fuzzers begin with beside the corpus that is kept: sourced from the root of the repository.

# seeds_of NAME FOLDER: writes seeds to the folder, a file each. The golden lines are calls that
# reach everything.
seeds_of() {
  local name=$1 folder=$2
  case $name in
  batch) cat tests/vectors/*.jsonl | grep . | split -l 1 -a 4 - "$folder/line" ;;
  sheet | csv) cp examples/*.csv "$folder" ;;
  esac
}
