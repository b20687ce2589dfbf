#!/usr/bin/env bash
# The telephone in the program's window, with a modem played on a pseudo-terminal: the start finds it
# on its port, a customer is called from his screen, speed dial entries are saved, deleted and called,
# and a call that never gets through is hung up. Every byte on the line is compared, and so are the
# files: telephone-test.sh PROGRAM SAMPLEMAKER PLAYEDMODEM PORTFOLDER LOCALE

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

playedModem=$1
portFolder=$2
locale=$3
playLocale=$locale.UTF-8
case $locale in
en_US)
    keyboard=us
    # The first customer of the sample business, with the number that he has there.
    called=217-555-0110
    EnterNumber() { :; }
    firstEntry=('Yard office' 217-555-0143)
    secondEntry=("O'Hara & Sons, \"Gravel\"" '1-800-GRAVEL')
    ;;
de_DE)
    keyboard=de
    called=03581-555-77
    # It is called as it stands on the screen. The keys come from the button, and go back to it.
    EnterNumber() {
        Keys shift+Tab
        ReplaceText "$called"
        Keys Tab
    }
    firstEntry=('Büro Süd' '03581 555 0199')
    secondEntry=('Groß, Jördis' '0151/555 078')
    ;;
*) Fail "There are no calls for $locale." ;;
esac

customersScreen='Customer Selection       '
dialerScreen='Call ...............'
# The first of the adapters on USB.
portOfModem=9
modemProcess=''
customersWindow=''
dialerWindow=''
heard=''

StartModem() {
    mkdir "$dayFolder/ports"
    "$playedModem" "$dayFolder/ports/ttyUSB0" "$dayFolder/heard" "$dayFolder/silence" \
        "$dayFolder/hold" >"$dayFolder/modem.log" 2>&1 &
    modemProcess=$!
    local i
    for ((i = 0; i < 10 * secondsToWait; i++)); do
        [[ ! -e $dayFolder/ports/ttyUSB0 ]] || return 0
        kill -0 "$modemProcess" 2>/dev/null || break
        sleep 0.1
    done
    FailDay "the modem did not start: $(tail -n 1 "$dayFolder/modem.log")"
}

# ExpectHeard COMMAND...: the modem hears these next, each with its carriage return, and no other.
ExpectHeard() {
    local command i
    for command; do
        heard+=$command$'\r'
    done
    for ((i = 0; i < 10 * secondsToWait; i++)); do
        # Longer than what comes late takes.
        if [[ $(<"$dayFolder/heard") == "$heard" ]]; then
            sleep 0.2
            break
        fi
        sleep 0.1
    done
    [[ $(<"$dayFolder/heard") == "$heard" ]] ||
        FailDay "the modem heard $(printf '%q' "$(<"$dayFolder/heard")") instead of $(printf '%q' "$heard")."
}

# ExpectFile FILE LINE...
ExpectFile() {
    local file=$1
    shift
    SetTextFile "$dayFolder/$file" "$@"
    cmp "$dayFolder/$file" "$business/$file" >&2 || FailDay "$file differs."
}

StartWithModem() {
    StartPlay "$business" "PLAYED_PORTS=$dayFolder/ports" \
        "LD_PRELOAD=$portFolder ${playClock[0]#LD_PRELOAD=}"
    WaitForTitle
    ExpectHeard AT 'AT#CID=1'
}

# To the button beside the first customer's telephone number, eight places behind his account number.
OpenCustomer() {
    local menu keys
    menu=$(WaitForWindow "$menuScreen")
    Press "$menu" alt+c
    customersWindow=$(WaitForWindow "$customersScreen")
    sleep 0.4
    mapfile -t keys < <(Times 8 Tab)
    Press "$customersWindow" "${keys[@]}"
}

# From that button. The keys are on Dial.
OpenDialer() {
    Press "$customersWindow" space
    dialerWindow=$(WaitForWindow "$dialerScreen")
    FocusWindow "$dialerWindow"
    sleep 0.4
}

ExpectDialerGone() {
    WaitUntilGone "$dialerWindow" "$dialerScreen"
}

# The dialer's picture, as a checksum.
Picture() {
    import -window "$dialerWindow" rgb:- | sha256sum
}

# The picture when nothing is painted any more.
PictureAtRest() {
    local before='' now i
    for ((i = 0; i < 10 * secondsToWait; i++)); do
        now=$(Picture)
        if [[ $now == "$before" ]]; then
            printf '%s\n' "$now"
            return
        fi
        before=$now
        sleep 0.2
    done
    FailDay 'the dialer does not come to rest.'
}

# WaitForOtherPicture PICTURE
WaitForOtherPicture() {
    local i
    for ((i = 0; i < 10 * secondsToWait; i++)); do
        [[ $(Picture) == "$1" ]] || return 0
        sleep 0.1
    done
    FailDay 'the dialer does not show that the number is through.'
}

# When the number is through, the dialer shows it, and the keys are on the button for the receiver in
# hand; before that, Enter has nothing to press.
CallAndTalk() {
    local dialing
    : >"$dayFolder/hold"
    Press "$dialerWindow" alt+d
    ExpectHeard "ATDT$1;"
    Keys Return
    dialing=$(PictureAtRest)
    ExpectHeard
    rm "$dayFolder/hold"
    WaitForOtherPicture "$dialing"
    Keys Return
    ExpectDialerGone
    ExpectHeard ATH
}

# Hundredths of a second of processor time that the program has taken.
ProcessorTime() {
    awk '{ print $14 + $15 }' "/proc/$programProcess/stat"
}

# A modem that never answers: the program waits in peace, and hangs up when told.
CallInVain() {
    local before taken
    : >"$dayFolder/silence"
    Press "$dialerWindow" alt+d
    ExpectHeard "ATDT$1;"
    # Until the window is painted.
    sleep 0.5
    before=$(ProcessorTime)
    sleep 3
    taken=$(($(ProcessorTime) - before))
    [[ $taken -le 15 ]] || FailDay "3 seconds of dialing took $taken hundredths of processor time."
    [[ -n $(WindowOf "$programProcess" "$dialerScreen") ]] || FailDay "the call ended by itself."
    Press "$dialerWindow" alt+i
    ExpectDialerGone
    ExpectHeard ATH
    rm "$dayFolder/silence"
}

# AddEntry NAME NUMBER: on the empty button that has the keys, and they come back to it.
AddEntry() {
    Keys space
    sleep 0.3
    Type "$1"
    Keys Return
    Type "$2"
    Keys Return
    sleep 0.3
}

# The first button is behind Dial and the prefix. A third entry is the customer himself, with the
# prefix, which takes the keys past Dial and back.
FillSpeedDial() {
    Keys Tab Tab
    AddEntry "${firstEntry[@]}"
    ExpectFile SpeedNumbers.txt "${firstEntry[@]}"
    Keys Tab
    AddEntry "${secondEntry[@]}"
    ExpectFile SpeedNumbers.txt "${firstEntry[@]}" "${secondEntry[@]}"
    # The prefix is three places before the third button.
    Keys shift+Tab shift+Tab space Tab Tab Tab space
    sleep 0.3
    Press "$dialerWindow" alt+l
    sleep 0.3
    ExpectFile SpeedNumbers.txt "${firstEntry[@]}" "${secondEntry[@]}" \
        "$customerName" "1-$called"
}

# From the third button: the second entry goes, and the third comes up to its place.
DeleteSecondEntry() {
    Keys shift+Tab space
    sleep 0.3
    Press "$dialerWindow" alt+n
    AnswerBox 'Delete Speed Dial' alt+n
    ExpectFile SpeedNumbers.txt "${firstEntry[@]}" "${secondEntry[@]}" \
        "$customerName" "1-$called"
    FocusWindow "$dialerWindow"
    sleep 0.3
    # After a No the entry has to be chosen again.
    Keys space
    sleep 0.3
    Press "$dialerWindow" alt+n
    AnswerBox 'Delete Speed Dial' alt+y
    FocusWindow "$dialerWindow"
    sleep 0.3
    ExpectFile SpeedNumbers.txt "${firstEntry[@]}" "$customerName" "1-$called"
}

# From Dial: the prefix, and the second button.
CallSecondEntry() {
    Keys Tab Tab Tab space
    CallAndTalk "1-$called"
}

Finish() {
    local menu
    Press "$customersWindow" alt+m
    menu=$(WaitForWindow "$menuScreen")
    LeaveProgram "$menu"
}

CleanUp() {
    [[ -z $modemProcess ]] || kill "$modemProcess" 2>/dev/null || true
}

customerName='Tamarind Lane Builders'

BeginPlay
setxkbmap "$keyboard"
LayOutBusiness "$business"
RemovePastSlips "$business"
rm "$business/Phone.txt"
StartModem

StartWithModem
ExpectFile Phone.txt '#FALSE#' "$portOfModem"
Continue
OpenCustomer
EnterNumber
OpenDialer
CallAndTalk "$called"
OpenDialer
CallInVain "$called"
OpenDialer
FillSpeedDial
DeleteSecondEntry
Press "$dialerWindow" Escape
ExpectDialerGone
ExpectHeard ATH
OpenDialer
CallSecondEntry
Finish
ExpectFile SpeedNumbers.txt "${firstEntry[@]}" "$customerName" "1-$called"

# The port in the file stays, and the modem is called on its own.
SetTextFile "$business/Phone.txt" '#TRUE#' 5
StartWithModem
ExpectFile Phone.txt '#TRUE#' 5
Continue
OpenCustomer
EnterNumber
OpenDialer
CallAndTalk "$called"
Finish
ExpectFile SpeedNumbers.txt "${firstEntry[@]}" "$customerName" "1-$called"
