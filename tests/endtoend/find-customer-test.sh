#!/usr/bin/env bash
# Each customer of the sample business found by another road and marked in the second line of his
# address, so that the file of the customers tells who was found; the printed list, and the texts
# kept beside the accounts. Every file is compared byte for byte:
# find-customer-test.sh PROGRAM SAMPLEMAKER LOCALE

# shellcheck source=tests/endtoend/customers.sh
source "$(dirname "${BASH_SOURCE[0]}")/customers.sh"

locale=$1
playLocale=$locale.UTF-8

expected=''
report='Customer report 2026-03-09.pdf'

# Places on the screen, with the texts beside the account open.
retain=(605 130)
showNext=(282 568)
reload=(424 568)
saveHeadings=(95 606)
closeTexts=(787 606)
fourthBox=(640 340)

# ExpectMark RECORD TEXT
ExpectMark() {
    PutInto "$expected/CustomerData.txt" "$1" 100 25 "$2"
}

# ExpectFullName RECORD NAME: a person who has been saved has it as the name of a business, too.
ExpectFullName() {
    PutInto "$expected/CustomerData.txt" "$1" 20 45 "$2"
}

# ExpectTexts ACCOUNT TEXT...: the six of an account, as they lie in the files.
ExpectTexts() {
    local account=$expected/AuxFiles/$1 box=0 text
    shift
    for text; do
        mkdir -p "$account/AuxFile$box"
        printf '%s\r\n' "$text" >"$account/AuxFile$box/Data.txt"
        box=$((box + 1))
    done
}

# Nobody has been moved to yet, so the persons have no name of a business and print without one.
PrintList() {
    PressButton "$customersWindow" alt+l
    BeginReport
    AnswerBox Print Escape
    AnswerBox "$notice" Return
    [[ ! -e "$dayFolder/Tessel Delivery/$report" ]] || FailDay 'the cancelled report was printed.'
    BeginReport
    AnswerBox Print alt+p
    ExpectPage "$(WaitForPaper "$report")" "customers.$locale.txt"
    PressButton "$customersWindow" alt+c
}

MoveThroughRecords() {
    Go "${next[@]}"
    MarkShown next
    Go "${last[@]}"
    MarkShown last
    Go "${previous[@]}"
    MarkShown previous
    Go "${quarter[@]}"
    MarkShown quarter
    Go "${half[@]}"
    MarkShown half
    Go "${threeQuarters[@]}"
    MarkShown 'three quarters'
    # Next at the last one begins anew, and there is none before the first.
    Go "${last[@]}"
    Go "${next[@]}"
    Go "${previous[@]}"
    MarkShown 'stays at the first'
    ExpectMark 2 next
    ExpectMark 12 last
    ExpectMark 11 previous
    ExpectMark 3 quarter
    ExpectMark 6 half
    ExpectMark 9 'three quarters'
    ExpectMark 1 'stays at the first'
    ExpectFullName 9 'Mr. Dale Whitcomb'
    ExpectFullName 11 'Mr/Mrs Harold Lindqvist'
    ExpectFullName 12 'Mrs Joan Abernathy'
}

FindByName() {
    PressButton "$customersWindow" alt+f
    Type bri
    Keys Return
    sleep 0.4
    MarkShown 'list of names'
    ExpectMark 4 'list of names'
}

# Four customers live there, one has the telephone, and one the street; the second of those found
# is loaded by the keys.
FindBySearch() {
    Search "${byCity[@]}" sPRINGf
    Keys Down Return
    sleep 0.4
    MarkShown 'second of the city'
    Search "${byTelephone[@]}" 555-0119
    MarkShown telephone
    Search "${byAddress1[@]}" ' KILN '
    MarkShown street
    Search "${byLastName[@]}" ndqv
    MarkShown 'last name'
    ExpectMark 5 'second of the city'
    ExpectMark 10 telephone
    ExpectMark 2 street
    ExpectMark 11 'last name'
    ExpectFullName 10 'Ms Renata Okafor'
}

# The seventh row, by its menu.
FindInList() {
    PressButton "$customersWindow" alt+l
    Click "$customersWindow" 150 344
    Click "$customersWindow" 150 344 3
    sleep 0.4
    Keys Down Return
    sleep 0.4
    MarkShown 'list of all'
    ExpectMark 7 'list of all'
}

FindByAutoAdvance() {
    AdvanceByItself
    MarkShown 'auto advance'
    ExpectMark 8 'auto advance'
}

# A name that is not on the list leads to the first customer.
LookForUnknownName() {
    PressButton "$customersWindow" alt+f
    Type Zebra
    Keys Tab
    AnswerBox "$notice" Return
    MarkShown 'unknown name'
    Go "${first[@]}"
    ExpectMark 1 'unknown name'
}

OpenTexts() {
    Press "$customersWindow" Alt_L Down Down Down Down Return
    sleep 0.4
}

# The keys begin in the first text; a heading stands before each. The fourth text is entered in the
# large window.
WriteTexts() {
    OpenTexts
    Type 'Gate code, 17'
    Keys Tab
    ReplaceText Dog
    Keys Tab
    Type 'Bites'
    xdotool mousemove --window "$customersWindow" "${fourthBox[@]}" click --repeat 2 --delay 60 1
    MoveMouseAway
    sleep 0.4
    Type 'Tank of 900'
    PressButton "$customersWindow" alt+d
    Go "${saveHeadings[@]}"
    SetTextFile "$expected/AuxHeadings.txt" 'Heading #1' Dog 'Heading #3' 'Heading #4' \
        'Heading #5' 'Heading #6'
}

# Retained texts are stored for the next account as they stand. When they are loaded, a comma has
# become the end of a line, and each value has one behind it.
RetainTexts() {
    Go "${retain[@]}"
    Go "${showNext[@]}"
    Go "${closeTexts[@]}"
    ExpectTexts 1001 'Gate code, 17' Bites '' 'Tank of 900' '' ''
    ExpectTexts 1002 'Gate code, 17' Bites '' 'Tank of 900' '' ''
    ExpectBusiness "$expected" 'with the retained texts'
    OpenTexts
    Go "${retain[@]}"
    Go "${reload[@]}"
    Go "${closeTexts[@]}"
    ExpectTexts 1002 $'Gate code\r\n17\r\n' $'Bites\r\n' $'\r\n' $'Tank of 900\r\n' $'\r\n' $'\r\n'
    ExpectBusiness "$expected" 'with the texts that were loaded and stored again'
}

# The menu comes in front of the screen.
LookForNobody() {
    Search "${byCity[@]}" Xyzzy
    AnswerBox 'Customer not Found' Return
}

BeginPlay
expected=$dayFolder/expected
LayOutBusiness "$business"
RemovePastSlips "$business"
cp -r "$business" "$expected"

StartPlay "$business"
WaitForTitle
Continue
OpenCustomers
PrintList
MoveThroughRecords
FindByName
FindBySearch
FindInList
FindByAutoAdvance
LookForUnknownName
ExpectBusiness "$expected" 'after all roads'
WriteTexts
RetainTexts
LookForNobody
LeaveProgram "$(WaitForWindow "$menuScreen")"
BackUpByHand "$expected" AuxHeadings
ExpectBusiness "$expected" 'after the exit'
