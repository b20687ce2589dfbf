#!/usr/bin/env bash
# One copy of the program works on a data folder: second-copy-test.sh PROGRAM SAMPLEMAKER

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

# So that a copy comes up without a question.
LayOutQuietBusiness() {
    LayOutBusiness "$1"
    RemovePastSlips "$1"
}

# Without ceremony: Die PROCESS
Die() {
    kill -KILL "$1"
    wait "$1" 2>/dev/null || true
}

BeginPlay
LayOutQuietBusiness "$business"
Snapshot "$business" >"$dayFolder/before.txt"

Step "The first copy starts."
StartPlay "$business"
WaitForTitle
first=$programProcess
firstTitle=$titleWindow

Step "A second copy is refused."
StartPlay "$business"
AnswerNext "$notice" Return
WaitForEnd
[[ $programStatus -eq 0 ]] || FailDay "the second copy ended with status $programStatus."

Step "The first copy goes on."
programProcess=$first
[[ $(WindowOf "$first" "$titleScreen") == "$firstTitle" ]] || FailDay "the first copy has gone."
Continue

Step "A copy on another folder starts."
LayOutQuietBusiness "$dayFolder/other"
StartPlay "$dayFolder/other"
WaitForTitle
Continue

Step "A copy starts after the first has died."
Die "$first"
StartPlay "$business"
WaitForTitle
Continue

Step "No copy has left anything in the folder."
Die "$programProcess"
programProcess=''
Snapshot "$business" >"$dayFolder/after.txt"
ExpectSame "the data folder" "$dayFolder/before.txt" "$dayFolder/after.txt"
