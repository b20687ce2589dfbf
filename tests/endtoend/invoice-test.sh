#!/usr/bin/env bash
# From a delivery on the board to its posted invoice, and the board with the next invoice number:
# invoice-test.sh PROGRAM SAMPLEMAKER LOCALE

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

locale=$1
untangle=''
playLocale=$locale.UTF-8
case $locale in
en_US)
    today=3/9/2026
    charge=40.5
    # shellcheck disable=SC2016  # dollars
    zero='$0.00'
    tax=68.64
    grandTotal=1207.34
    # Tenths of a thousandth of 1,098.20, 68.64 and 1,207.34.
    subTotalBytes=7092a70000000000
    taxBytes=40790a0000000000
    grandTotalBytes=b839b80000000000
    soldItems=('Plywood Sheet 4x8' 1000 'Framing Lumber 2x4x8' 3000
        'Portland Cement 94 lb Bag' 1400)
    # The tax of 975.00 is 60.9375.
    nextTotals=$'Sub-Total $975.00\nSales Tax $60.94\nDelivery Charge $0.00\nTotal $1,035.94'
    ;;
de_DE)
    # The board reads the goods field by field, so each comma of an amount begins a new field: of
    # the four lines that the slip counts, the second and the third hold no product, and the field
    # behind them, which is taken for the sub-total, is the 275 of the third product.
    today=09.03.2026
    charge=40
    zero=$'0,00\xc2\xa0€'
    tax=17,19
    grandTotal=332,19
    # Of 275,00, 17,19 and 332,19.
    subTotalBytes=30f6290000000000
    taxBytes=7c9f020000000000
    grandTotalBytes=2cb0320000000000
    soldItems=('Plywood Sheet 4x8' 1000 'Portland Cement 94 lb Bag' 1400)
    # The product in the place of the second line's total reaches over the quantity in that of its
    # price, so the font decides which of them begins first.
    untangle='s/ Framing 48 / 48 Framing /'
    # The tax of 39,00 is 2,4375.
    nextTotals=$'Sub-Total 39,00 €\nSales Tax 2,44 €\nDelivery Charge 0,00 €\nTotal 41,44 €'
    ;;
*) Fail "There is no invoice for $locale." ;;
esac

# Of 9 March 2026, 46,090 days after 30 December 1899.
todayBytes=000000004081e640
slipNo=20260009
account=1001
customer='Tamarind Lane Builders'
invoiceNo=20260001
documents=''
board=''

# One for each line whose product is in the inventory, which pallets are not. After the product
# comes the quantity in two bytes.
WriteSoldItems() {
    local i
    for ((i = 0; i < ${#soldItems[@]}; i += 2)); do
        Text 60 "${soldItems[i]}"
        Hex "$todayBytes"
        Text 20 "$invoiceNo"
        Hex "${soldItems[i + 1]}"
    done
}

WriteJournal() {
    Text 45 "$customer"
    Text 20 "$account"
    Text 20 "$invoiceNo"
    Hex "$todayBytes" "$subTotalBytes" "$taxBytes"
    Zeros 8
    Hex "$grandTotalBytes"
}

# The first of the two taxes, as the sample business applies no other.
WriteTaxRecords() {
    Text 20 'Sales Tax'
    Text 15 "$today"
    Text 30 "$invoiceNo"
    Text 10 "$tax"
}

# LedgerEntry DESCRIPTION AMOUNT
LedgerEntry() {
    Text 45 "$customer"
    Text 25 "$account"
    Text 15 "$today"
    Text 60 "$1"
    Text 10 "$2"
}

WriteLedger() {
    LedgerEntry 'Previous Balance' "$zero"
    LedgerEntry "$invoiceNo" "$grandTotal"
}

# What the invoice makes of a business, done by hand to one as it was laid out.
PostByHand() {
    local folder=$1
    rm "$folder"/TesselDelivery/{Deliveries,DeliveryItems}/"$slipNo.txt"
    WriteSoldItems >"$folder/SoldItems.txt"
    WriteJournal >"$folder/InvoiceSalesJournal.txt"
    WriteTaxRecords >"$folder/TaxRecords.txt"
    WriteLedger >"$folder/NXActiveAccounts/$account.txt"
    cp "$folder/NXActiveAccounts/$account.txt" "$folder/Backup/NXActiveAccounts"
    SetTextFile "$folder/NXInvoiceNo.txt" 20260002
}

OpenBoard() {
    local menu
    menu=$(WaitForWindow "$menuScreen")
    Press "$menu" alt+p
    board=$(WaitForWindow "$boardScreen")
    ChooseFirstVehicle "$board"
}

# MarkDelivery ROW: by a click on its customer, then the key that marks it.
MarkDelivery() {
    xdotool mousemove --window "$board" 400 $((72 + 27 * $1)) click 1
    MoveMouseAway
    Press "$board" space
}

# The charge is three places before the deliveries, and the box of the invoices six behind the
# charge: the sample business has its schedules printed and its invoices populated already.
PrintInvoice() {
    Keys shift+Tab shift+Tab shift+Tab
    ReplaceText "$charge"
    Keys Return Tab Tab Tab Tab Tab Tab space
    Press "$board" alt+p
}

# Before the whole folder is compared, as the bytes of a file tell more than its checksum.
ExpectRecords() {
    local name
    for name in SoldItems InvoiceSalesJournal TaxRecords NXInvoiceNo \
        {,Backup/}NXActiveAccounts/"$account"; do
        cmp "$dayFolder/posted/$name.txt" "$business/$name.txt" >&2 ||
            FailDay "$name.txt is not as it should be."
    done
}

ExpectPapers() {
    local papers
    papers=$(cd "$documents" && printf '%s\n' *)
    [[ $papers == "$schedule"$'\n'"$invoice" ]] || FailDay "the papers are $papers."
    ExpectPage "$documents/$schedule" "invoice-schedule.$locale.txt"
    PageText "$documents/$invoice" | sed "$untangle" >"$dayFolder/invoice.txt"
    ExpectSame 'the printed invoice' "$endToEndFolder/invoice.$locale.txt" "$dayFolder/invoice.txt"
}

# Where the invoiced delivery was stands the one behind it, when the vehicle has been chosen again.
# The number on the board's slip panel is what its invoice bears, and its charge is its own. An
# invoice that came out wrong and is given up posts nothing.
PrintAnotherInvoiceAndGiveItUp() {
    local text another="$documents/Invoice 20260002 Ms Renata Okafor.pdf"
    OpenBoard
    MarkDelivery 2
    Press "$board" alt+p
    WaitForWindow 'Printing Confirmation' >/dev/null
    [[ -e $another ]] || FailDay "the next invoice is not in $another."
    text=$(PageText "$another")
    [[ $text == *$'\nINVOICE NO: 20260002\n'*"$nextTotals" ]] ||
        FailDay "the next invoice says $text."
    AnswerBox 'Printing Confirmation' alt+n
    AnswerBox 'Print Retry' alt+n
    AnswerBox 'Remove Items' alt+n
}

schedule='Delivery schedule 2026-03-09 Flatbed Truck.pdf'
invoice="Invoice $invoiceNo $customer.pdf"

BeginPlay
documents="$dayFolder/Tessel Delivery"
LayOutBusiness "$business"
RemovePastSlips "$business"
cp -r "$business" "$dayFolder/before"
SetTextFile "$dayFolder/before/NXInvoiceNo.txt" "$invoiceNo"
cp -r "$business" "$dayFolder/posted"
PostByHand "$dayFolder/posted"

StartPlay "$business"
WaitForTitle
Continue
OpenBoard
MarkDelivery 2
PrintInvoice
WaitForWindow 'Printing Confirmation' >/dev/null
ExpectPapers
ExpectBusiness "$dayFolder/before" 'before the confirmation'
AnswerBox 'Printing Confirmation' alt+y
AnswerBox "$recurringQuestion" alt+y
AnswerBox "$notice" Return
WaitForWindow "$menuScreen" >/dev/null
AnswerBox 'Remove Items' alt+n
ExpectRecords
ExpectBusiness "$dayFolder/posted" 'after the confirmation'
PrintAnotherInvoiceAndGiveItUp
LeaveProgram "$(WaitForWindow "$menuScreen")"
BackUpByHand "$dayFolder/posted" SoldItems TaxRecords
ExpectBusiness "$dayFolder/posted" 'after the exit'
