# shellcheck shell=bash
# A short working day at the program, on a virtual display with real keys, for machines without a
# desktop: start, the questions about past slips, the menu, the board, print, exit.

titleScreen='Tessel Delivery'
menuScreen='Delivery Scheduling Main Menu'
boardScreen='Print Delivery Schedules and Invoices'
setupScreen='Tessel Delivery Setup'
holidaysScreen='Block Holidays'
displaySize=1280x800x24
secondsToWait=60

# Shared by the steps of one day.
dayFolder=''
dayHome=''
displayProcess=''
managerProcess=''
programProcess=''
programStatus=''
titleWindow=''

StopDay() {
    [[ -z $programProcess ]] || kill "$programProcess" 2>/dev/null || true
    [[ -z $managerProcess ]] || kill "$managerProcess" 2>/dev/null || true
    [[ -z $displayProcess ]] || kill "$displayProcess" 2>/dev/null || true
    [[ -z $dayHome ]] || rm -rf "$dayHome"
}

FailDay() {
    import -window root "$dayFolder/failed.png" 2>/dev/null || true
    tail -n 20 "$dayFolder/program.log" >&2 || true
    Fail "The working day stopped: $* See $dayFolder/failed.png and program.log there."
}

ProgramRuns() {
    kill -0 "$programProcess" 2>/dev/null
}

# Frames around the windows, so that the pictures show what an operator sees.
StartWindowManager() {
    HOME=$dayHome openbox --sm-disable >"$dayHome/manager.log" 2>&1 &
    managerProcess=$!
    local i
    for ((i = 0; i < 10 * secondsToWait; i++)); do
        ! xdotool get_num_desktops >/dev/null 2>&1 || return 0
        sleep 0.1
    done
    Fail "The window manager did not start: $(tail -n 1 "$dayHome/manager.log")"
}

StartDisplay() {
    # The server chooses a free display number and writes it down when it is ready. It is not to
    # begin anew whenever its last client has gone, which would shut out the next one meanwhile.
    Xvfb -displayfd 3 -screen 0 "$displaySize" -nolisten tcp -noreset \
        3>"$dayHome/display" >"$dayHome/display.log" 2>&1 &
    displayProcess=$!
    local i
    for ((i = 0; i < 10 * secondsToWait; i++)); do
        if [[ -s $dayHome/display ]]; then
            DISPLAY=:$(<"$dayHome/display")
            export DISPLAY
            StartWindowManager
            return
        fi
        kill -0 "$displayProcess" 2>/dev/null || break
        sleep 0.1
    done
    Fail "The virtual display did not start: $(tail -n 1 "$dayHome/display.log")"
}

# StartProgram PROGRAM BUSINESS [WORD...]
# A home of its own, whose documents are the day's folder, and no printer: so every print becomes
# a PDF in the day's folder. Nothing opens it there. The words go before the program as env takes
# them: variables that differ from those here, then a command to start it through.
StartProgram() {
    local program=$1 business=$2
    shift 2
    mkdir -p "$dayHome/config" "$dayHome/runtime" "$dayHome/bin"
    ln -sf "$(type -P true)" "$dayHome/bin/xdg-open"
    chmod 700 "$dayHome/runtime"
    printf 'XDG_DOCUMENTS_DIR="%s"\n' "$dayFolder" >"$dayHome/config/user-dirs.dirs"
    (
        cd "$business" || exit
        exec env PATH="$dayHome/bin:$PATH" HOME="$dayHome" XDG_CONFIG_HOME="$dayHome/config" \
            XDG_RUNTIME_DIR="$dayHome/runtime" CUPS_SERVER="$dayHome/no-printer" \
            QT_QPA_PLATFORM=xcb LC_ALL=en_US.UTF-8 "$@" "$program"
    ) >>"$dayFolder/program.log" 2>&1 </dev/null &
    programProcess=$!
}

Windows() {
    xdotool search --onlyvisible --class tessel-delivery 2>/dev/null || true
}

TitleOf() {
    local title
    title=$(xdotool getwindowname "$1" 2>/dev/null || true)
    # The toolkit adds the program's name to a window's title.
    printf '%s\n' "${title% — "$titleScreen"}"
}

# The window of a screen, or nothing.
FindScreen() {
    local window
    for window in $(Windows); do
        if [[ $(TitleOf "$window") == "$1" ]]; then
            printf '%s\n' "$window"
            return
        fi
    done
}

# The message box that stands on the screen, or nothing.
FindMessage() {
    local window
    for window in $(Windows); do
        case $(TitleOf "$window") in
        "$menuScreen" | "$boardScreen" | "$setupScreen" | "$holidaysScreen") ;;
        *)
            if [[ $window != "$titleWindow" ]]; then
                printf '%s\n' "$window"
                return
            fi
            ;;
        esac
    done
}

# Waits for a screen and prints its window.
WaitForScreen() {
    local title=$1 window i
    for ((i = 0; i < 5 * secondsToWait; i++)); do
        window=$(FindScreen "$title")
        if [[ -n $window ]]; then
            printf '%s\n' "$window"
            return
        fi
        ProgramRuns || break
        sleep 0.2
    done
    FailDay "the screen \"$title\" did not appear."
}

# A window that has only just come up may not take the keys at once.
FocusWindow() {
    local i
    for ((i = 0; i < 10; i++)); do
        ! timeout 10 xdotool windowfocus --sync "$1" 2>/dev/null || return 0
        sleep 0.1
    done
    FailDay "a window does not take the keys."
}

# Press WINDOW KEY...
Press() {
    local window=$1
    shift
    FocusWindow "$window"
    xdotool key --clearmodifiers --delay 50 "$@"
}

# To where nothing shows a tool tip.
MoveMouseAway() {
    xdotool mousemove 1279 799
}

TakePicture() {
    sleep 0.7
    import -window root "$dayFolder/$1.png"
    Step "  $dayFolder/$1.png"
}

# WaitUntilGone WINDOW TITLE
WaitUntilGone() {
    local i
    for ((i = 0; i < 50; i++)); do
        [[ " $(Windows | tr '\n' ' ') " == *" $1 "* ]] || return 0
        sleep 0.1
    done
    FailDay "the message \"$2\" did not take its answer."
}

# Answers a message box as a careful operator does who only looks around: recurring slips are kept,
# and nothing is posted.
AnswerMessage() {
    local window=$1 title
    title=$(TitleOf "$window")
    case $title in
    "$titleScreen") Press "$window" Return ;;
    'Delete a Recurring Slip' | 'Remove Items' | 'Printing Confirmation' | 'Print Retry')
        Press "$window" alt+n
        ;;
    *) FailDay "an unexpected message \"$title\" came up." ;;
    esac
    WaitUntilGone "$window" "$title"
}

# Answers messages until none has come for a second; the first one is worth a picture, which gets
# the name of the argument.
AnswerMessages() {
    local picture=${1:-} window quiet=0 count=0
    while [[ $quiet -lt 5 ]]; do
        ProgramRuns || FailDay "the program ended."
        window=$(FindMessage)
        if [[ -z $window ]]; then
            quiet=$((quiet + 1))
            sleep 0.2
            continue
        fi
        quiet=0
        if [[ $count -eq 0 && -n $picture ]]; then
            TakePicture "$picture"
        fi
        AnswerMessage "$window"
        count=$((count + 1))
    done
    [[ $count -eq 0 ]] || Step "  $count messages answered"
}

# The title screen takes the key to the menu when the start is done, which the questions are part of.
OpenMenu() {
    local i
    for ((i = 0; i < secondsToWait; i++)); do
        AnswerMessages 2-question
        [[ -z $(FindScreen "$menuScreen") ]] || return 0
        TakePicture 1-title-screen
        Press "$titleWindow" Return
        sleep 1
    done
    FailDay "the menu did not open."
}

# A click on the list of vehicles, at the left edge under the date, then to its last line and back
# to its first.
ChooseFirstVehicle() {
    local window=$1
    xdotool mousemove --window "$window" 100 233 click 1
    Press "$window" End Home
    MoveMouseAway
}

# The PDF of the print, in the folder of the day.
WaitForPdf() {
    local i found
    for ((i = 0; i < 5 * secondsToWait; i++)); do
        found=$(find "$dayFolder/Tessel Delivery" -name '[!.]*.pdf' 2>/dev/null | head -n 1 || true)
        if [[ -n $found ]]; then
            printf '%s\n' "$found"
            return
        fi
        sleep 0.2
    done
    FailDay "nothing was printed."
}

# Waits until the program has ended; its status is in programStatus afterwards.
WaitForEnd() {
    local i
    for ((i = 0; i < 5 * secondsToWait; i++)); do
        ProgramRuns || break
        sleep 0.2
    done
    ! ProgramRuns || FailDay "the program did not end."
    programStatus=0
    wait "$programProcess" || programStatus=$?
    programProcess=''
}

# Through the menu bar: Alt opens it at Files, whose last item is Exit.
LeaveProgram() {
    Press "$1" Alt_L Down Up Return
    WaitForEnd
    [[ $programStatus -eq 0 ]] || FailDay "the program ended with status $programStatus."
}

# BeginDay FOLDER: a display of one's own for what follows; FOLDER takes pictures and messages.
BeginDay() {
    dayFolder=$1
    dayHome=$(mktemp -d)
    trap StopDay EXIT
    StartDisplay
    MoveMouseAway
}

# WorkingDay PROGRAM BUSINESS FOLDER: the pictures and the PDF of the day are in FOLDER afterwards.
WorkingDay() {
    local program=$1 business=$2
    BeginDay "$3"

    Step "Starting the program."
    StartProgram "$program" "$business"
    local menu board pdf text
    titleWindow=$(WaitForScreen "$titleScreen")

    Step "Answering the questions about past slips and opening the menu."
    OpenMenu
    [[ -e $dayFolder/2-question.png ]] || FailDay "the program asked nothing about past slips."
    menu=$(WaitForScreen "$menuScreen")
    TakePicture 3-menu

    Step "Opening the board."
    Press "$menu" alt+p
    board=$(WaitForScreen "$boardScreen")
    ChooseFirstVehicle "$board"
    TakePicture 4-board

    Step "Selecting all deliveries and printing them."
    Press "$board" alt+s
    Press "$board" alt+p
    pdf=$(WaitForPdf)
    AnswerMessages
    TakePicture 5-after-print
    text=$(pdftotext -layout "$pdf" -)
    [[ $text == *'SCHEDULED DELIVERIES'* ]] || FailDay "the printed page is no delivery schedule."
    Step "  $pdf"

    Step "Leaving the program."
    if [[ -z $(FindScreen "$menuScreen") ]]; then
        Press "$board" alt+m
    fi
    menu=$(WaitForScreen "$menuScreen")
    LeaveProgram "$menu"
    Step "The working day is in $dayFolder"
}
