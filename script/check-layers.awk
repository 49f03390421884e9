# Holds includes, as `grep -n` shows them, to the table of script/layers.txt: prints a line for
# each one that breaks it, and for each line of the table that is wrong itself.
#
#   awk -f check-layers.awk layers.txt includes

# layer FILE: the name of its line, or "" when there is none.
function layer(file, i) {
  for (i = 1; i <= count; ++i)
    if (match(file, "^" patterns[i])) return names[i]
  return ""
}

FILENAME == ARGV[1] {
  if (/^#/ || NF == 0) next
  names[++count] = $1
  patterns[count] = $2
  allowed[$1, $1] = 1
  for (i = 3; i <= NF; ++i) {
    if ($i != "-" && !(($i, $i) in allowed))
      print FILENAME ":" FNR ": " $1 " names " $i ", which is not above it"
    allowed[$1, $i] = 1
  }
  next
}

{
  split($0, parts, ":")
  file = parts[1]
  split($0, quoted, "\"")
  included = quoted[2]
  where = file ":" parts[2] ": "
  from = layer(file)
  to = layer(included)
  if (from == "tests" && included !~ /\//) next
  if (from == "") print where "this file is in no line of script/layers.txt"
  else if (included !~ /\.h$/) print where included " is no header"
  else if (to == "") print where included " is not named from the project's folder on"
  else if (!((from, to) in allowed)) print where from " may not include " included " (" to ")"
}
