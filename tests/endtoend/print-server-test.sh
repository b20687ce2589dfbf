#!/usr/bin/env bash
# The schedule goes to the default printer of a real print server: print-server-test.sh PROGRAM
# SAMPLEMAKER

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"
# shellcheck source=tests/endtoend/print-server.sh
source "$endToEndFolder/print-server.sh"

serverFolder=$(mktemp -d -t tessel-printer-XXXXXX)
CleanUp() {
    StopPrintServer
    rm -rf "$serverFolder"
}

BeginPlay
StartPrintServer "$serverFolder" || FailDay "there is no print server."

LayOutBusiness "$business"
StartPlay "$business" CUPS_SERVER="$CUPS_SERVER"
WaitForTitle
AnswerPastSlips
Continue
PrintFirstVehicle
WaitForPrintedJobs 1 || FailDay "nothing was printed."
printed=("$serverFolder"/printed/*.pdf)
[[ ${#printed[@]} -eq 1 ]] || FailDay "${#printed[@]} jobs were printed."
[[ $(basename "${printed[0]}") == '1 Delivery schedule 2026-03-09 Flatbed Truck.pdf' ]] ||
    FailDay "the job is ${printed[0]}."
ExpectPage "${printed[0]}" schedule.en_US.txt
Leave
[[ ! -e "$dayFolder/Tessel Delivery" ]] || FailDay "the page went into the documents as well."
