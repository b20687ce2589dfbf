#!/usr/bin/env bash
# The deliveries of a range seen, printed, moved and deleted, and the stock printed: from the menu to
# the paper and to the files, all of which are compared byte for byte:
# oversee-test.sh PROGRAM SAMPLEMAKER LOCALE

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

locale=$1
playLocale=$locale.UTF-8
case $locale in
en_US)
    # Day YEAR MONTH DAY
    Day() { printf '%d/%d/%d' "$2" "$3" "$1"; }
    Amount() { printf '$%s' "$1"; }
    ;;
de_DE)
    Day() { printf '%02d.%02d.%d' "$3" "$2" "$1"; }
    # The blank before the sign of the euro does not break; on paper it is read as a plain one.
    Amount() { printf '%s €' "${1/./,}"; }
    ;;
*) Fail "There is nothing to oversee for $locale." ;;
esac

today=$(Day 2026 3 9)
expected=''
menuWindow=''
rangeWindow=''

# Places on the screen of the range.
todayButton=(76 211)
nextMonth=(172 211)
nextQuarter=(76 249)
nextYear=(172 249)
byVehicle=(48 340)
secondVan=(66 439)
remove=(725 675)
reschedule=(879 675)
newTime=(770 574)
newVehicle=(950 508)
saveDelivery=(985 607)
# On the screen of the products.
sortItems=(48 431)
tallySheets=(1070 110)
saveLocations=(937 674)
clearLocations=(798 674)
printSheets=(1103 674)

# WriteSlip FOLDER NUMBER DATE TIME VEHICLE ACCOUNT CUSTOMER [FREQUENCY]
WriteSlip() {
    local recurring=False
    [[ $# -lt 8 ]] || recurring=True
    SetTextFile "$1/TesselDelivery/Deliveries/$2.txt" "$2" "$3" "$4" "$recurring" "${8:-}" "$5" \
        "$6" "$7" 'PO 7' 'North gate' "\"$7\"" '"5 Oak Street"' '""' '"Chatham"' '"IL"' '"62629"' \
        "\"$7\"" '"5 Oak Street"' '""' '"Chatham"' '"IL"' '"62629"'
    SetTextFile "$1/TesselDelivery/DeliveryItems/$2.txt" "$2" 0 '"0"'
}

# The last one is on the fifth day of its year: its key has fewer digits than those of this year.
WriteSlips() {
    rm "$business"/TesselDelivery/{Deliveries,DeliveryItems}/*
    WriteSlip "$business" 20260101 "$today" 02:00pm 'Van 2' 1001 'Tamarind Lane Builders'
    WriteSlip "$business" 20260102 "$today" 07.15am 'Flatbed Truck' 1003 'Whistling Elm Nursery' \
        0000001
    WriteSlip "$business" 20260103 "$(Day 2026 3 20)" 09:30am 'Flatbed Truck' 1005 \
        'Osterhaus Roofing'
    WriteSlip "$business" 20260104 "$(Day 2026 4 9)" 10:30am 'Van 2' 1007 'Pickett Paving Company' \
        0000002
    WriteSlip "$business" 20260105 "$(Day 2026 4 10)" 08:00am Tanker 1008 'Sunday Porch Decks'
    WriteSlip "$business" 20260106 "$(Day 2026 6 10)" 08:00am Tanker 1009 'Mr. Dale Whitcomb'
    WriteSlip "$business" 20260107 "$(Day 2027 1 5)" 08:00am Tanker 1010 'Ms Renata Okafor'
}

ClickRange() {
    Click "$rangeWindow" "$1" "$2"
    sleep 0.4
}

# ExpectPaper NAME LINE...: the PDF of that name says so. It is taken away, for the next of the name.
ExpectPaper() {
    local paper
    paper=$(WaitForPaper "$1.pdf")
    printf '%s\n' "${@:2}" >"$dayFolder/lines.txt"
    PageText "$paper" >"$dayFolder/page.txt"
    ExpectSame "$1" "$dayFolder/lines.txt" "$dayFolder/page.txt"
    rm "$paper"
}

# PrintRange YEAR MONTH DAY LINE...: the deliveries of the grid, from today to that day.
PrintRange() {
    local name
    PressButton "$rangeWindow" alt+p
    name=$(printf 'Scheduled deliveries 2026-03-09 to %d-%02d-%02d' "$1" "$2" "$3")
    ExpectPaper "$name" 'Scheduled Deliveries by Date Range' \
        "Cutler Bend Builders Yard Starting Date $today Report Date $today" \
        "1480 Quarry Road Ending Date $(Day "$1" "$2" "$3")" "${restOfHeading[@]}" \
        'Delivery No. Account No Account Name Delivery Date Time Scheduled Vehicle' "${@:4}"
}

SeeRanges() {
    ClickRange "${todayButton[@]}"
    PrintRange 2026 3 9 "$first" "$second"
    ClickRange "${nextQuarter[@]}"
    PrintRange 2026 6 9 "$first" "$second" "$third" "$fourth" "$inQuarter"
    ClickRange "${nextYear[@]}"
    PrintRange 2027 3 9 "$nextJanuary" "$first" "$second" "$third" "$fourth" "$inQuarter" "$inYear"
    ClickRange "${nextMonth[@]}"
    PrintRange 2026 4 9 "$first" "$second" "$third" "$fourth"
}

# Until it is loaded anew the grid is empty.
SeeOneVehicle() {
    ClickRange "${byVehicle[@]}"
    ClickRange "${secondVan[@]}"
    PrintRange 2026 4 9
    PressButton "$rangeWindow" alt+l
    PrintRange 2026 4 9 "$second" "$fourth"
    ClickRange "${byVehicle[@]}"
}

# PickRow ROW: by a click on its number.
PickRow() {
    ClickRange 280 $((72 + 27 * $1))
}

# Another time and another vehicle are picked as well; the file keeps its own.
MoveByAWeek() {
    ClickRange "${nextMonth[@]}"
    PickRow 3
    ClickRange "${reschedule[@]}"
    ReplaceText "$(Day 2026 3 27)"
    Keys Tab
    ClickRange "${newTime[@]}"
    ClickRange "${newVehicle[@]}"
    ClickRange "${saveDelivery[@]}"
    WriteSlip "$expected" 20260103 "$(Day 2026 3 27)" 09:30am 'Flatbed Truck' 1005 \
        'Osterhaus Roofing'
    ExpectBusiness "$expected" 'after the move'
    third="20260103 1005 Osterhaus Roofing $(Day 2026 3 27) 09:30am Flatbed Truck"
    PressButton "$rangeWindow" alt+l
    PrintRange 2026 4 9 "$first" "$second" "$third" "$fourth"
}

# Remove ROW KEY...: with the keys that answer the two questions.
Remove() {
    local key
    PickRow "$1"
    ClickRange "${remove[@]}"
    for key in "${@:2}"; do
        AnswerBox 'Confirm Delete' "$key"
    done
}

# The one that is not recurring goes. The recurring one comes again in a week when it is kept, and as
# the day is a holiday, on the day behind it.
RemoveDeliveries() {
    Remove 2 alt+n
    Remove 2 alt+y alt+n
    ExpectBusiness "$expected" 'after the deliveries that were kept'
    Remove 2 alt+y alt+y
    AnswerBox "$notice" Return
    rm "$expected"/TesselDelivery/{Deliveries,DeliveryItems}/20260101.txt
    ExpectBusiness "$expected" 'after the delivery that was deleted'
    Remove 1 alt+y alt+y
    AnswerBox "$recurringQuestion" alt+n
    AnswerBox "$notice" Return
    AnswerBox "$notice" Return
    WriteSlip "$expected" 20260102 "$(Day 2026 3 17)" 07.15am 'Flatbed Truck' 1003 \
        'Whistling Elm Nursery' 0000001
    ExpectBusiness "$expected" 'after the recurring delivery'
    first="20260102 1003 Whistling Elm Nursery $(Day 2026 3 17) 07.15am Flatbed Truck"
    PrintRange 2026 4 9 "$first" "$third" "$fourth"
}

# The grid is in the order of the categories, then in that of the descriptions.
PrintInventory() {
    PressButton "$productsWindow" alt+p
    AnswerBox Print Escape
    AnswerBox "$notice" Return
    [[ -z $(ls "$dayFolder/Tessel Delivery") ]] || FailDay 'the cancelled report was printed.'
    PressButton "$productsWindow" alt+p
    AnswerBox Print alt+p
    ExpectPaper 'Inventory Report 2026-03-09' "Inventory Report Date $today" \
        'Cutler Bend Builders Yard' '1480 Quarry Road' "${restOfHeading[@]}" \
        'Description Unit Cost Sell Price On-Hand Disc Price Disc Qty Reorder Qty When At' \
        "Washed Sand per Yard $(Amount 19.50) $(Amount 34.00) 85 $(Amount 32.00) 10 40 20" \
        "Crushed Gravel per Yard $(Amount 22.00) $(Amount 38.50) 18 $(Amount 36.00) 10 60 25" \
        "Site Water 100 Gallons $(Amount 1.10) $(Amount 6.50) 900 $(Amount 6.00) 50 0 0" \
        "Framing Lumber 2x4x8 $(Amount 3.05) $(Amount 4.85) 2350 $(Amount 4.55) 100 1200 500" \
        "Plywood Sheet 4x8 $(Amount 24.40) $(Amount 36.90) 310 $(Amount 34.90) 20 120 60" \
        "Portland Cement 94 lb Bag $(Amount 9.10) $(Amount 13.75) 620 $(Amount 12.90) 40 280 140" \
        "Concrete Block 8 inch $(Amount 1.35) $(Amount 2.10) 4100 $(Amount 1.95) 200 1800 900" \
        "Roofing Shingle Bundle $(Amount 27.10) $(Amount 39.50) 190 $(Amount 37.50) 24 96 48"
}

# ExpectTallySheet NAME LOCATION: the day lies beside the paper, which stands upright.
ExpectTallySheet() {
    ExpectPaper "$1" "Inventory Tally Sheet Location: $2" 'Cutler Bend Builders Yard' \
        '1480 Quarry Road' "${restOfHeading[@]}" 'Description On-Hand Count Reorder When At' \
        'Concrete Block 8 inch _______________ 900' 'Crushed Gravel per Yard _______________ 25' \
        'Framing Lumber 2x4x8 _______________ 500' 'Plywood Sheet 4x8 _______________ 60' \
        'Portland Cement 94 lb Bag _______________ 140' \
        'Roofing Shingle Bundle _______________ 48' 'Site Water 100 Gallons _______________ 0' \
        'Washed Sand per Yard _______________ 20'
}

# A comma lies in the file as it was typed. Without a location nothing is printed.
PrintTallySheets() {
    Click "$productsWindow" "${sortItems[@]}"
    PressButton "$productsWindow" alt+r
    Click "$productsWindow" "${tallySheets[@]}"
    sleep 0.4
    EnterFields 'Yard, north' '' '' 7
    Click "$productsWindow" "${saveLocations[@]}"
    sleep 0.4
    SetTextFile "$expected/Locations.txt" 'Yard, north' '' '' 7 ''
    ExpectBusiness "$expected" 'after the locations'
    Click "$productsWindow" "${printSheets[@]}"
    AnswerBox Print alt+p
    ExpectTallySheet 'Inventory Tally Sheet 2026-03-09 (2)' 7
    ExpectTallySheet 'Inventory Tally Sheet 2026-03-09' 'Yard, north'
    Click "$productsWindow" "${clearLocations[@]}"
    Click "$productsWindow" "${printSheets[@]}"
    AnswerBox Print alt+p
    Click "$productsWindow" "${printSheets[@]}"
    AnswerBox Print Escape
    AnswerBox "$notice" Return
    [[ -z $(ls "$dayFolder/Tessel Delivery") ]] || FailDay 'a sheet without a location was printed.'
}

restOfHeading=('Springfield, IL. 62707' 'Telephone: 217-555-0142' www.cutlerbend.example
    'FEIN 00-0000000')
first="20260102 1003 Whistling Elm Nursery $today 07.15am Flatbed Truck"
second="20260101 1001 Tamarind Lane Builders $today 02:00pm Van 2"
third="20260103 1005 Osterhaus Roofing $(Day 2026 3 20) 09:30am Flatbed Truck"
fourth="20260104 1007 Pickett Paving Company $(Day 2026 4 9) 10:30am Van 2"
inQuarter="20260105 1008 Sunday Porch Decks $(Day 2026 4 10) 08:00am Tanker"
inYear="20260106 1009 Mr. Dale Whitcomb $(Day 2026 6 10) 08:00am Tanker"
nextJanuary="20260107 1010 Ms Renata Okafor $(Day 2027 1 5) 08:00am Tanker"

BeginPlay
expected=$dayFolder/expected
LayOutBusiness "$business"
WriteSlips
cp -r "$business" "$expected"

StartPlay "$business"
WaitForTitle
Continue
menuWindow=$(WaitForWindow "$menuScreen")
PressButton "$menuWindow" alt+s
rangeWindow=$(WaitForWindow 'View Scheduled Deliveries')
SeeRanges
SeeOneVehicle
ExpectBusiness "$expected" 'after the ranges'
MoveByAWeek
RemoveDeliveries
Press "$rangeWindow" alt+r
OpenProducts
PrintInventory
PrintTallySheets
ShowItems Down
Press "$productsWindow" shift+Tab space
LeaveProgram "$(WaitForWindow "$menuScreen")"
BackUpByHand "$expected"
ExpectBusiness "$expected" 'after the exit'
