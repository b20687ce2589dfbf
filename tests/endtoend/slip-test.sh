#!/usr/bin/env bash
# Two deliveries written with the keys alone, a recurring one and a one-time one: from the menu over
# the customer to the stored slips, to the board of their day, and to the start of a later day, on
# which the one moves on and the other goes. Every file is compared byte for byte:
# slip-test.sh PROGRAM SAMPLEMAKER LOCALE

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

locale=$1
playLocale=$locale.UTF-8
case $locale in
en_US)
    today=3/9/2026
    shipDate=3/11/2026
    nextDate=3/25/2026
    Amount() { printf '$%s' "$1"; }
    ;;
de_DE)
    today=09.03.2026
    shipDate=11.03.2026
    nextDate=25.03.2026
    # The blank before the sign of the euro does not break.
    Amount() { printf '%s\u00a0€' "${1/./,}"; }
    ;;
*) Fail "There are no slips for $locale." ;;
esac

# Wednesday a week later has passed as well by the day of the second start, so it is the one after.
laterDay=2026-03-19

# Behind the last slip of the sample business.
recurringSlip=20260061
oneTimeSlip=20260062

# ExpectRecurringHeader FOLDER DATE
ExpectRecurringHeader() {
    SetTextFile "$1/Deliveries/$recurringSlip.txt" "$recurringSlip" "$2" 09:30am True 0000001 \
        'Flatbed Truck' 1003 'Whistling Elm Nursery' 'PO 7' 'North gate' \
        '"Whistling Elm Nursery"' '"2210 County Road 9"' '""' '"Chatham"' '"IL"' '"62629"' \
        '"Whistling Elm Nursery"' '"2210 County Road 9"' '""' '"Chatham"' '"IL"' '"62629"'
}

ExpectRecurringItems() {
    SetTextFile "$1/DeliveryItems/$recurringSlip.txt" "$recurringSlip" 3 \
        20 'Portland Cement 94 lb Bag' "$(Amount 13.75)" "$(Amount 275.00)" \
        48 'Framing Lumber 2x4x8' "$(Amount 4.85)" "$(Amount 232.80)" \
        3 'Empty Crates' "$(Amount 0.00)" "$(Amount 0.00)" \
        "\"$(Amount 507.80)\""
}

# The screen still has the frequency of the slip before, and a one-time slip keeps it. A person
# without a middle initial has two blanks in its place.
ExpectOneTimeSlip() {
    SetTextFile "$1/Deliveries/$oneTimeSlip.txt" "$oneTimeSlip" "$shipDate" 10:30am False 0000001 \
        'Flatbed Truck' 1010 'Ms Renata  Okafor' "Prepared $today" 'Ring twice' \
        '"Ms Renata  Okafor"' '"912 Wren Street"' '"Apt 2B"' '"Springfield"' '"IL"' '"62704"' \
        '"Ms Renata  Okafor"' '"912 Wren Street"' '"Apt 2B"' '"Springfield"' '"IL"' '"62704"'
    SetTextFile "$1/DeliveryItems/$oneTimeSlip.txt" "$oneTimeSlip" 2 \
        20 'Plywood Sheet 4x8' "$(Amount 36.90)" "$(Amount 738.00)" \
        6 'Roofing Shingle Bundle' "$(Amount 39.50)" "$(Amount 237.00)" \
        "\"$(Amount 975.00)\""
}

# The account of a person who has been selected has the name as that of a business, too. It is the
# tenth of the records of 328 bytes, and the name stands behind the account number.
ExpectPersonalName() {
    Text 45 'Ms Renata Okafor' | dd of="$1/CustomerData.txt" bs=1 seek=$((9 * 328 + 20)) \
        conv=notrunc status=none
}

# StartSlip LETTERS: for the customer whose name begins so. The keys are in the attention line.
StartSlip() {
    local customers
    PressButton "$menuWindow" alt+c
    customers=$(WaitForWindow "$customersScreen")
    sleep 0.4
    # The list of names, which goes on to the button that selects the account.
    PressButton "$customers" alt+f
    Type "$1"
    Keys Return
    sleep 0.3
    Keys Return
    slipWindow=$(WaitForWindow "$slipScreen")
    FocusWindow "$slipWindow"
    sleep 0.4
}

# PostItem LETTERS UNITS: the keys come back to the list, which takes letters that follow each
# other closely for one name.
PostItem() {
    Type "$1"
    Keys Return
    Type "$2"
    Keys Return
    sleep 0.7
}

# PostFreeLine DESCRIPTION UNITS: and back to the list of the items.
PostFreeLine() {
    Press "$slipWindow" alt+n
    Type "$1"
    Keys Return
    Type "$2"
    Keys Return
    Press "$slipWindow" alt+i
}

# Past the item and the units, of which there are none, to the button that stores.
StoreSlip() {
    Keys Return Return Return
    WaitUntilGone "$slipWindow" "$slipScreen"
    menuWindow=$(WaitForWindow "$menuScreen")
}

# Enter goes from field to field: attention, slip number, reference, recurrence, frequency, date,
# time, vehicle. Weekly is proposed.
WriteRecurringSlip() {
    StartSlip Whi
    Type 'North gate'
    Keys Return Return
    Type 'PO 7'
    Keys Return space Return Return
    Type "$shipDate"
    Keys Return
    Type 09:30
    Keys Return Return Return
    AnswerBox "$notice" Return
    PostItem Po 20
    PostItem Fr 48
    PostFreeLine 'Empty Crates' 3
    StoreSlip
}

# The option of the slip before is still there. A one-time slip goes past the frequencies, and nothing
# is told of its first delivery.
WriteOneTimeSlip() {
    StartSlip Oka
    Type 'Ring twice'
    Keys Return Return Return Down Return
    Type "$shipDate"
    Keys Return
    Type 10:30
    Keys Return Return Return
    sleep 0.4
    PostItem Ply 20
    PostItem Ro 6
    StoreSlip
}

# From the menu to the board and back, with the print of the whole day. The keys begin in the list of
# the deliveries, seven places behind the date.
PrintDay() {
    local board keys pdf
    PressButton "$menuWindow" alt+p
    board=$(WaitForWindow "$boardScreen")
    mapfile -t keys < <(Times 7 shift+Tab)
    Press "$board" "${keys[@]}"
    ReplaceText "$shipDate"
    Keys Return
    PressButton "$board" alt+s
    Press "$board" alt+p
    pdf=$(WaitForPdf)
    [[ $(basename "$pdf") == 'Delivery schedule 2026-03-11 Flatbed Truck.pdf' ]] ||
        FailDay "the page is in $pdf."
    ExpectPage "$pdf" "slips.$locale.txt"
    Press "$board" alt+m
    menuWindow=$(WaitForWindow "$menuScreen")
}

LeaveWithBackup() {
    LeaveProgram "$menuWindow"
    BackUpByHand "$expected"
}

slipScreen='Delivery Creation'
menuWindow=''
slipWindow=''

BeginPlay
expected=$dayFolder/expected
LayOutBusiness "$business"
# What is written here is all there is.
rm "$business"/TesselDelivery/{Deliveries,DeliveryItems}/*
cp -r "$business" "$expected"

StartPlay "$business"
WaitForTitle
Continue
menuWindow=$(WaitForWindow "$menuScreen")
WriteRecurringSlip
ExpectRecurringHeader "$expected/TesselDelivery" "$shipDate"
ExpectRecurringItems "$expected/TesselDelivery"
SetTextFile "$expected/NQDeliveryNo.txt" 20260062
ExpectBusiness "$expected" 'after the recurring slip'
WriteOneTimeSlip
ExpectOneTimeSlip "$expected/TesselDelivery"
ExpectPersonalName "$expected"
SetTextFile "$expected/NQDeliveryNo.txt" 20260063
ExpectBusiness "$expected" 'after the one-time slip'
PrintDay
# The board shows the first invoice number of the year, which begins the counter.
SetTextFile "$expected/NXInvoiceNo.txt" 20260001
ExpectBusiness "$expected" 'after the print'
LeaveWithBackup
ExpectBusiness "$expected" 'after the exit'

SetPlayDate "$laterDay"
StartPlay "$business"
WaitForTitle
# The recurring slip is kept, and so it moves on; the other one goes with a notice.
AnswerNext "$recurringQuestion" alt+n
AnswerNext "$notice" Return
ExpectRecurringHeader "$expected/TesselDelivery" "$nextDate"
AnswerNext "$notice" Return
rm "$expected"/TesselDelivery/{Deliveries,DeliveryItems}/$oneTimeSlip.txt
Continue
# The start writes this file anew, and its safety copy goes until the next exit.
rm "$expected/Backup/Phone.txt"
ExpectBusiness "$expected" 'after the start of the later day'
menuWindow=$(WaitForWindow "$menuScreen")
LeaveWithBackup
ExpectBusiness "$expected" 'after the second exit'
