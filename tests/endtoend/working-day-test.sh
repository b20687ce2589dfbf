#!/usr/bin/env bash
# A working day from the start to the printed page and the exit: working-day-test.sh PROGRAM
# SAMPLEMAKER LOCALE

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

locale=$1
playLocale=$locale.UTF-8
case $locale in
en_US)
    # Weekly, monthly, and on Mondays, Wednesdays and Fridays; all three from 2 March, a Monday.
    # A month on is Thursday, 2 April, which the same-weekday rule brings to Sunday, 29 March.
    newDates=([20260001]=3/9/2026 [20260002]=3/30/2026 [20260003]=3/9/2026)
    goodsOfFirstSlip=$'20260001\r\n2\r\n6\r\nCrushed Gravel per Yard\r\n$38.50\r\n$231.00\r\n24\r\n'
    goodsOfFirstSlip+=$'Framing Lumber 2x4x8\r\n$4.85\r\n$116.40\r\n"$347.40"\r\n'
    ;;
de_DE)
    # In Windows-1252 the blank before the sign of the euro is 0xa0, and the sign 0x80. The board
    # reads the goods field by field, so on the page each comma of an amount begins a new field.
    newDates=([20260001]=09.03.2026 [20260002]=30.03.2026 [20260003]=09.03.2026)
    goodsOfFirstSlip=$'20260001\r\n2\r\n6\r\nCrushed Gravel per Yard\r\n38,50\xa0\x80\r\n'
    goodsOfFirstSlip+=$'231,00\xa0\x80\r\n24\r\nFraming Lumber 2x4x8\r\n4,85\xa0\x80\r\n'
    goodsOfFirstSlip+=$'116,40\xa0\x80\r\n"347,40\xa0\x80"\r\n'
    ;;
*) Fail "There is no page for $locale." ;;
esac

# What the day makes of a business, done by hand to one as it was laid out.
DoTheDayByHand() {
    local folder=$1 slipNo name
    for slipNo in "${!newDates[@]}"; do
        LC_ALL=C sed -i "2s|.*|${newDates[$slipNo]}\r|" \
            "$folder/TesselDelivery/Deliveries/$slipNo.txt"
    done
    for slipNo in 20260004 20260005; do
        rm "$folder/TesselDelivery/Deliveries/$slipNo.txt" \
            "$folder/TesselDelivery/DeliveryItems/$slipNo.txt"
    done
    # The board shows the first invoice number of the year, which begins the counter.
    printf '20260001\r\n' >"$folder/NXInvoiceNo.txt"
    # Of the exit's list, what the sample business has.
    for name in CustomerData MyBusinessData Phone PrintColors; do
        cp "$folder/$name.txt" "$folder/Backup"
    done
}

BeginPlay
LayOutBusiness "$business"
LayOutBusiness "$dayFolder/expected"
printf '%s' "$goodsOfFirstSlip" >"$dayFolder/goods"
ExpectSame "the slip's goods" "$dayFolder/goods" "$business/TesselDelivery/DeliveryItems/20260001.txt"
DoTheDayByHand "$dayFolder/expected"

StartPlay "$business"
WaitForTitle
AnswerPastSlips
Continue
PrintFirstVehicle
pdf=$(WaitForPdf)
[[ $(basename "$pdf") == 'Delivery schedule 2026-03-09 Flatbed Truck.pdf' ]] ||
    FailDay "the page is in $pdf."
ExpectPage "$pdf" "schedule.$locale.txt"
Leave

Snapshot "$dayFolder/expected" >"$dayFolder/expected.txt"
Snapshot "$business" >"$dayFolder/actual.txt"
ExpectSame "the data folder after the exit" "$dayFolder/expected.txt" "$dayFolder/actual.txt"
