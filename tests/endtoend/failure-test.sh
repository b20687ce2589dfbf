#!/usr/bin/env bash
# What can't be read or written stops the program, with a report, with the data as it was and
# without the safety copy of an ordinary exit: failure-test.sh PROGRAM SAMPLEMAKER RULE

# A full disk is one of the test's own, in a name space of its own, so that it goes with the test.
# Where the machine lets nobody mount one, there is a file size limit instead.
if [[ $3 == FullDiskStopsTheReschedule && -z ${mayMount:-} ]]; then
    export mayMount=no
    for rights in --mount --map-root-user; do
        if unshare --mount $rights mount -t tmpfs none /mnt 2>/dev/null; then
            mayMount=yes exec unshare --mount $rights "$0" "$@"
        fi
    done
fi

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

rule=$1

headers=TesselDelivery/Deliveries
temporaryHeader=$headers/TempFile.txt
keptPastSlip="$headers/20260001.txt"

# What a rule sets: how the folder is spoiled before its picture is taken, and what is put in the
# program's way after that; the words to start the program with; the operator's way to the failure;
# and the sentence of the report.
Spoil() { :; }
Obstruct() { :; }
PlayUpToFailure() { :; }
startWords=()
sentence=''
# The file that may be left behind, as far as the write to it came before it failed.
leftBehind=''

KeepFirstPastSlip() {
    WaitForTitle
    AnswerNext "$recurringQuestion" alt+n
}

OpenBoard() {
    WaitForTitle
    Continue
    local menu
    menu=$(WaitForWindow "$menuScreen")
    Press "$menu" alt+p
}

# CutTo LINES FILE
CutTo() {
    sed -i "$(($1 + 1)),\$d" "$business/$2"
}

# ReplaceLine NUMBER TEXT FILE
ReplaceLine() {
    sed -i "$1s/.*/$2\r/" "$business/$3"
}

# The setup screen of a business without past slips; it opens with the keys on the way to its options.
OpenOptions() {
    WaitForTitle
    Continue
    OpenSetup
    OpenSetupOptions USA
}

# Behind the buttons of the look and the box of the colour.
SaveWithWrongCopies() {
    OpenOptions
    Keys Tab Tab Tab Tab Tab ctrl+a
    Type x
    SaveSetup
}

# On the fifth of the sub-tabs, behind two boxes.
LeaveDeliveryChargeEmpty() {
    OpenOptions
    Keys Right Right Right Right Tab Tab Tab ctrl+a BackSpace Tab
}

SpoilLogo() {
    printf 'This is no picture.' >"$business/logo.bmp"
    SetTextFile "$business/CompanyLogo.txt" "\"$business/logo.bmp\""
}

SpoilHolidays() {
    printf '"Christmas"\r\n' >"$business/Holidays.txt"
}

# As the superuser a file's rights bind the program only when it goes without the superuser's
# freedom from them. As anyone else they bind it anyway.
ObeyRights() {
    [[ $EUID -ne 0 ]] || startWords=(setpriv "--bounding-set=-dac_override,-dac_read_search")
}

# Every start writes Phone.txt, which is as long as the limit. The messages go through a pipe, which
# the limit does not bind.
LimitFileSize() {
    # shellcheck disable=SC2016  # for the inner shell to expand
    startWords=(bash -c 'exec 2> >(exec cat >&2); exec prlimit --fsize=12 "$@"' limited)
}

UseOwnDisk() {
    mkdir "$dayFolder/disk"
    mount -t tmpfs -o size=4m none "$dayFolder/disk"
    # The ended program may still be on its way off it.
    CleanUp() { umount --lazy "$dayFolder/disk"; }
    business=$dayFolder/disk/$businessName
}

FillOwnDisk() {
    cat /dev/zero >"$dayFolder/disk/filler" 2>/dev/null || true
}

# Of the first product of the grid, behind six fields; two more follow it.
SaveTooManyUnitsOnHand() {
    WaitForTitle
    Continue
    OpenProducts
    ModifyItem 1
    Keys Return Return Return Return Return Return
    ReplaceText 40000
    Keys Return Return Return Return
}

BeginPlay
case $rule in
SlipOfFewerThanTenLinesStopsTheStart)
    Spoil() { CutTo 9 "$headers/20260009.txt"; }
    sentence="Reading $headers/20260009.txt failed: the file ends before all of its values were read."
    ;;
SlipWhoseDateIsNoDateStopsTheStart)
    Spoil() { ReplaceLine 2 'next Tuesday' "$keptPastSlip"; }
    sentence="The text \"next Tuesday\" is not a date (reading the delivery date in $keptPastSlip)."
    ;;
SettingsFileWithTooFewFieldsStopsTheStart)
    Spoil() { CutTo 3 PrintColors.txt; }
    sentence='Reading PrintColors.txt failed: the file ends before all of its values were read.'
    ;;
SettingsFileWithAWrongTypeStopsTheStart)
    Spoil() { ReplaceLine 2 five Settings.txt; }
    sentence='Reading Settings.txt failed: "five" is not a number.'
    ;;
HolidaysThatAreNoDatesStopTheReschedule)
    Spoil() { SpoilHolidays; }
    PlayUpToFailure() { KeepFirstPastSlip; }
    sentence='Reading Holidays.txt failed: "Christmas" is not a date.'
    ;;
HolidaysThatAreNoDatesStopTheBoard)
    Spoil() {
        SpoilHolidays
        RemovePastSlips "$business"
    }
    PlayUpToFailure() { OpenBoard; }
    sentence='Reading Holidays.txt failed: "Christmas" is not a date.'
    ;;
LogoThatIsNoPictureStopsTheStart)
    Spoil() { SpoilLogo; }
    sentence="Loading the picture $business/logo.bmp failed: Unsupported image format."
    ;;
CopiesThatAreNoNumberStopTheSave)
    Spoil() { RemovePastSlips "$business"; }
    PlayUpToFailure() { SaveWithWrongCopies; }
    sentence='The text "x" is not a number (the number of print copies).'
    ;;
DeliveryChargeLeftEmptyStopsTheProgram)
    Spoil() { RemovePastSlips "$business"; }
    PlayUpToFailure() { LeaveDeliveryChargeEmpty; }
    sentence='The text "" is not a number (the delivery charge of the setup screen).'
    ;;
UnreadableFileStopsTheStart)
    Obstruct() { chmod 000 "$business/CustomerData.txt"; }
    ObeyRights
    sentence='Opening CustomerData.txt for reading and writing failed: Permission denied.'
    ;;
ReadOnlyFolderStopsTheStart)
    Obstruct() { chmod -R a-w "$business"; }
    ObeyRights
    sentence='Deleting Phone.txt failed: Permission denied.'
    ;;
UnreadableProductsStopTheStart)
    Spoil() { RemovePastSlips "$business"; }
    Obstruct() { chmod 000 "$business/NXInventoriedItems.txt"; }
    ObeyRights
    sentence='Opening NXInventoriedItems.txt for reading and writing failed: Permission denied.'
    ;;
TooFewStatesStopTheStart)
    # The whole list has fifty.
    Spoil() {
        RemovePastSlips "$business"
        seq -f '"S%g"' 49 | sed 's/$/\r/' >"$business/StatesList.txt"
    }
    sentence='Reading StatesList.txt failed: the file ends before all of its values were read.'
    ;;
TooManyUnitsOnHandStopTheSave)
    Spoil() { RemovePastSlips "$business"; }
    PlayUpToFailure() { SaveTooManyUnitsOnHand; }
    sentence='The number 40000 is outside its range (the units on hand).'
    ;;
FullDiskStopsTheReschedule)
    PlayUpToFailure() { KeepFirstPastSlip; }
    if [[ $mayMount == yes ]]; then
        UseOwnDisk
        Obstruct() { FillOwnDisk; }
        sentence="Writing $temporaryHeader failed: No space left on device."
    else
        LimitFileSize
        sentence="Writing $temporaryHeader failed: File too large."
    fi
    leftBehind=$temporaryHeader
    ;;
FileSizeLimitStopsTheReschedule)
    PlayUpToFailure() { KeepFirstPastSlip; }
    LimitFileSize
    sentence="Writing $temporaryHeader failed: File too large."
    leftBehind=$temporaryHeader
    ;;
*) Fail "There is no rule $rule." ;;
esac

LayOutBusiness "$business"
Spoil
Snapshot "$business" >"$dayFolder/before.txt"
Obstruct

StartPlay "$business" "${startWords[@]}"
PlayUpToFailure
report=$(WaitForWindow 'Run-time Failure')
grep -Fxq "$sentence" "$dayFolder/program.log" || FailDay "the report lacks \"$sentence\"."
Press "$report" Return
WaitForEnd
[[ $programStatus -eq 1 ]] || FailDay "the program ended with status $programStatus."

chmod -R u+rwX "$business"
[[ -z $leftBehind ]] || rm -f "$business/$leftBehind"
# The backup folder is part of the picture: no copy has come into it.
Snapshot "$business" >"$dayFolder/after.txt"
ExpectSame "the data folder" "$dayFolder/before.txt" "$dayFolder/after.txt"
