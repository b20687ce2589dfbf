# shellcheck shell=bash
# The ways to a customer on his screen. A test that finds one sources this file in the place of play.sh.

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

customersWindow=''

# Places on the screen: the second line of the address, the buttons that move through the records,
# and the one that opens the search.
# shellcheck disable=SC2034  # for the tests
{
    address2=(222 268)
    first=(923 341)
    previous=(995 341)
    next=(1064 341)
    last=(1135 341)
    quarter=(935 401)
    half=(1029 401)
    threeQuarters=(1123 401)
    autoAdvance=(1029 438)
    searchByCriteria=(1030 133)
    byAddress1=(110 158)
    byCity=(275 129)
    byState=(275 158)
    byTelephone=(495 129)
    byLastName=(495 158)
    byAccount=(495 187)
}

# From the menu. The window is in customersWindow afterwards.
OpenCustomers() {
    Press "$(WaitForWindow "$menuScreen")" alt+u
    customersWindow=$(WaitForWindow "$customersScreen")
    FocusWindow "$customersWindow"
}

# Go X Y: a click on that button, and a moment for the customer to come up.
Go() {
    Click "$customersWindow" "$1" "$2"
    sleep 0.4
}

# MarkShown TEXT: the customer who is shown, in the second line of his address. The record is written
# when he is left.
MarkShown() {
    Click "$customersWindow" "${address2[@]}"
    ReplaceText "$1"
}

# PutInto FILE RECORD PLACE WIDTH TEXT: into a file of customers, behind that many bytes of the
# record's 328.
PutInto() {
    Text "$4" "$5" | dd of="$1" bs=1 seek=$((328 * ($2 - 1) + $3)) conv=notrunc status=none
}

# Search X Y TEXT: by the option at that place.
Search() {
    Go "${searchByCriteria[@]}"
    Go "$1" "$2"
    ReplaceText "$3"
    Keys Return
    sleep 1
}

# To the customer behind the one who is shown. The first tick writes that one's record once more
# before it moves on.
AdvanceByItself() {
    local i
    Go "${autoAdvance[@]}"
    touch "$dayFolder/started"
    for ((i = 0; i < 10 * secondsToWait; i++)); do
        [[ ! $business/CustomerData.txt -nt $dayFolder/started ]] || break
        sleep 0.1
    done
    Go "${autoAdvance[@]}"
}

# Asks for the report of the customers in the list, up to the printer.
BeginReport() {
    PressButton "$customersWindow" alt+p
    AnswerBox 'Customer Report' alt+y
}
