#!/bin/sh
# run-report.sh RUNNER LYTCALL: the report on this machine, as text, as JSON and without names. Two reports of one machine
# differ in nothing but what differs from run to run.
set -u
runner=$1
lytcall=$2
folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 2
mkdir listed
bad=0
complain() { echo "$1"; bad=1; }
report() { "$runner" "$lytcall" report "$@"; }

report listed --out first.txt >told || complain "no report"
report listed --out second.txt >>told || complain "no second report"
report --diff first.txt second.txt >difference || { cat difference; complain "the reports differ"; }

report listed --json --out report.json >>told || complain "no report in JSON"
python3 - <<'END' || complain "the report in JSON is another one"
import json
blocks = json.load(open("report.json", encoding="utf-8"))["blocks"]
lines = [line for block in blocks for line in block["lines"]]
text = open("first.txt", encoding="utf-8").read().split("\n")[:-1]
changing = ("Memory in use", "Free ")
assert [l for l in lines if not l.startswith(changing)] == [l for l in text if not l.startswith(changing)]
assert [block["title"] for block in blocks][:3] == ["The program and Windows", "Printers", "The workstation"]
END

user=$(sed -n 's/^USERNAME://p' first.txt)
machine=$(sed -n 's/^COMPUTERNAME://p' first.txt)
report listed --redact --out redacted.txt >>told || complain "no report without names"
grep -q '^USERNAME:USER$' redacted.txt || complain "the user's name is in the report"
grep -q '^COMPUTERNAME:MACHINE$' redacted.txt || complain "the machine's name is in the report"
grep -iw -e "$user" -e "$machine" redacted.txt && complain "a name is left"
exit $bad
