#!/usr/bin/env bash
# A folder without data gets its folders and no file but the modem's, the operator is told that there
# is no customer, and the title screen does not let him past its welcome panel:
# empty-folder-test.sh PROGRAM SAMPLEMAKER

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

# No telephone, the first port.
phoneFile=$(printf '#FALSE#\r\n1\r\n' | sha256sum | cut -d ' ' -f 1)

expected="d  .
d  ./2026
d  ./AuxFiles
d  ./Backup
d  ./Backup/NXActiveAccounts
d  ./Backup/tessel-delivery
d  ./NXActiveAccounts
$phoneFile  ./Phone.txt
d  ./Templates
d  ./Templates/Deliveries
d  ./TesselDelivery
d  ./TesselDelivery/Deliveries
d  ./TesselDelivery/DeliveryItems"

# ExpectData [LINE]: with what the exit adds.
ExpectData() {
    printf '%s\n' "$expected" "$@" | LC_ALL=C sort -k 2 >"$dayFolder/expected.txt"
    Snapshot "$business" >"$dayFolder/actual.txt"
    ExpectSame "the data folder" "$dayFolder/expected.txt" "$dayFolder/actual.txt"
}

# How many dots of the title screen differ from the picture that was taken before.
ChangedDots() {
    import -window "$titleWindow" "$dayFolder/after.png"
    compare -metric AE "$dayFolder/before.png" "$dayFolder/after.png" null: 2>&1 || true
}

# The panel covers much of the screen.
WaitForWelcomePanel() {
    local i
    for ((i = 0; i < secondsToWait; i++)); do
        [[ $(ChangedDots) -lt 50000 ]] || return 0
        sleep 0.5
    done
    FailDay "the welcome panel did not appear."
}

BeginPlay
mkdir "$business"
StartPlay "$business"
WaitForTitle
AnswerNext 'Create Customers' Return
# Until the bar has run through.
sleep 1.5
ExpectData

import -window "$titleWindow" "$dayFolder/before.png"
Press "$titleWindow" Return
WaitForWelcomePanel
[[ $(Windows) == "$titleWindow" ]] || FailDay "the title screen is not the only window."

Press "$titleWindow" alt+F4
WaitForEnd
[[ $programStatus -eq 0 ]] || FailDay "the program ended with status $programStatus."
ExpectData "$phoneFile  ./Backup/Phone.txt"
