#!/usr/bin/env bash
# Customers found, listed and printed in a business that has as many as there can be. Who was found is
# told by the second line of his address, in which he is marked:
# many-customers-test.sh PROGRAM SAMPLEMAKER

# shellcheck source=tests/endtoend/customers.sh
source "$(dirname "${BASH_SOURCE[0]}")/customers.sh"

customers=32767
expected=''
report='Customer report 2026-03-09.pdf'

# The records of all customers. Every fourth is a person. The names of the others run backwards, so
# that their order is not that of the file. The zero bytes are put in behind.
WriteCustomers() {
    LC_ALL=C awk -v customers="$customers" 'BEGIN {
        for (n = 1; n <= customers; ++n) {
            person = n % 4 == 0
            printf "%-20s%-45s", 100000 + n, person ? "" : sprintf("Shop %05d", 32768 - n)
            printf "%-35s%-25s%-25s%-20s", n " Mill Road", "", "City " n % 4000, ""
            printf "%-2s%-10s%-25s217-555-%04d ", "IL", "62704", "62704", n % 10000
            printf "%-13s%-30s%-10s", "", "", person ? "Mrs" : ""
            printf "%-15s%-1s%-25s", person ? "Ann" : "", "", person ? sprintf("Lee %05d", n) : ""
            printf "%-10s\001\002\002\002", person ? "Individual" : "Business"
        }
    }' | LC_ALL=C tr '\002' '\000'
}

# Mark RECORD TEXT: the customer who is shown is the one of that record. The city is listed when he
# is written.
Mark() {
    MarkShown "$2"
    PutInto "$expected" "$1" 100 25 "$2"
    PutInto "$expected" "$1" 150 20 "City $(($1 % 4000))"
}

MoveThroughRecords() {
    Go "${last[@]}"
    Mark 32767 last
    Go "${quarter[@]}"
    Mark 8191 quarter
    Go "${half[@]}"
    Mark 16382 half
    Go "${threeQuarters[@]}"
    Mark 24573 'three quarters'
    # Next at the last one begins anew.
    Go "${last[@]}"
    Go "${next[@]}"
    Mark 1 'behind the last'
}

FindByName() {
    PressButton "$customersWindow" alt+f
    Type 'shop 12345'
    Keys Return
    sleep 0.4
    Mark 20423 'list of names'
}

# One customer has the account, eight live in the city, and all in the state.
FindBySearch() {
    Search "${byAccount[@]}" 120001
    Mark 20001 account
    Search "${byCity[@]}" 'city 1234'
    Keys ctrl+End Return
    sleep 0.4
    Mark 29234 'last of the city'
    Search "${byState[@]}" il
    Keys Down Return
    sleep 0.4
    Mark 2 'second of the state'
}

FindInList() {
    PressButton "$customersWindow" alt+l
    sleep 1
    Keys ctrl+End Up Return
    sleep 0.4
    Mark 32766 'list of all'
}

FindByAutoAdvance() {
    AdvanceByItself
    Mark 32767 'auto advance'
    Go "${first[@]}"
}

# ExpectCustomers: the records as they have been marked, and their siblings, which were made with the
# first start and hold nothing.
ExpectCustomers() {
    cmp "$expected" "$business/CustomerData.txt" >&2 || FailDay 'another customer was found.'
    cmp <(Zeros $((386 * customers))) "$business/ContractInfo.txt" >&2 ||
        FailDay 'the contracts are not as they were.'
    cmp <(Zeros $((69 * customers))) "$business/CycleInfo.txt" >&2 ||
        FailDay 'the cycles are not as they were.'
}

# The progress has the program's title, as the message that follows has.
StopReport() {
    BeginReport
    AnswerBox Print alt+p
    AnswerBox "$notice" Escape
    AnswerBox "$notice" Return
    [[ -z $(find "$dayFolder/Tessel Delivery" -type f) ]] ||
        FailDay 'the stopped report has left something behind.'
}

# PlainLines PDF PAGE: what that page says, with single blanks.
PlainLines() {
    pdftotext -f "$2" -l "$2" -layout "$1" - | sed 's/\f//; s/^ *//; s/  */ /g' | grep .
}

# Three customers stand in a row, and seven rows on a page; on the last one there are three rows, of
# which one has a single customer.
PrintReport() {
    local paper pages=1561 text=$dayFolder/report.txt
    BeginReport
    AnswerBox Print alt+p
    paper=$(WaitForPaper "$report")
    [[ $(pdfinfo "$paper") == *"Pages:"*" $pages"* ]] ||
        FailDay "the report has not $pages pages: $(pdfinfo "$paper")"
    pdftotext -layout "$paper" "$text"
    [[ $(grep -c 'Account Information' "$text") == "$pages" ]] ||
        FailDay 'a page of the report has no title.'
    [[ $(grep -o 'Mill Road' "$text" | wc -l) == "$customers" ]] ||
        FailDay 'the report has not all customers.'
    PlainLines "$paper" 1 | grep -A 3 -m 1 Shop >"$dayFolder/page.txt"
    printf '%s\n' 'Shop 32767 Shop 32766 Shop 32765' '1 Mill Road 2 Mill Road 3 Mill Road' \
        'City 1, IL 62704 City 2, IL 62704 City 3, IL 62704' \
        '217-555-0001 217-555-0002 217-555-0003' >"$dayFolder/lines.txt"
    ExpectSame 'the first row of the report' "$dayFolder/lines.txt" "$dayFolder/page.txt"
    PlainLines "$paper" "$pages" | tail -n 4 >"$dayFolder/page.txt"
    printf '%s\n' 'Shop 00001' '32767 Mill Road' 'City 767, IL 62704' '217-555-2767' \
        >"$dayFolder/lines.txt"
    ExpectSame 'the last customer of the report' "$dayFolder/lines.txt" "$dayFolder/page.txt"
}

# The start makes a folder for each customer, which a disk can take minutes to give up again.
[[ ! -w /dev/shm ]] || export TMPDIR=/dev/shm
BeginPlay
expected=$dayFolder/customers
LayOutBusiness "$business"
RemovePastSlips "$business"
rm "$business"/{ContractInfo,CycleInfo}.txt
WriteCustomers >"$expected"
[[ $(stat -c %s "$expected") == $((328 * customers)) ]] || Fail 'the records are not as long.'
cp "$expected" "$business/CustomerData.txt"

StartPlay "$business"
WaitForTitle
Continue
OpenCustomers
MoveThroughRecords
FindByName
FindBySearch
FindInList
FindByAutoAdvance
ExpectCustomers
PressButton "$customersWindow" alt+l
sleep 1
StopReport
PrintReport
ExpectCustomers
Press "$customersWindow" alt+m
LeaveProgram "$(WaitForWindow "$menuScreen")"
ExpectCustomers
