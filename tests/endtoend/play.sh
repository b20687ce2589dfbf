# shellcheck shell=bash
# The end-to-end tests play the program as an operator has it: in a window on a display of its own,
# with real keys, on a set day. A test sources this file, which takes the test's first two
# arguments: the program and the maker of the sample business.
#
# What a failed test leaves behind, picture and messages, is in the folder that it names.

set -euo pipefail

endToEndFolder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/lib/common.sh
source "$endToEndFolder/../../scripts/lib/common.sh"
# shellcheck source=scripts/lib/working-day.sh
source "$projectFolder/scripts/lib/working-day.sh"

program=$1
sampleMaker=$2
shift 2

productsScreen='Inventoried Items'
# shellcheck disable=SC2034  # for the tests
customersScreen='Customer Selection       '
recurringQuestion='Delete a Recurring Slip'
# A message box without a title of its own has the program's.
notice=$titleScreen

playDate=''
playClock=()
playLocale=en_US.UTF-8
# A name that a careless road from the folder to a file would trip over.
businessName='Büro Süd 1'
business=''
setupWindow=''
productsWindow=''
playProcesses=()

# SetPlayDate DATE: the programs started from now on have a clock that runs on from the morning of
# that day, as words for env. The loader puts the machine's folder of libraries in the place of $LIB.
# The preloaded clock comes before the sanitizer's own library, which that library must put up with.
SetPlayDate() {
    playDate=$1
    # shellcheck disable=SC2016  # for the loader to expand
    playClock=(
        'LD_PRELOAD=/usr/$LIB/faketime/libfaketime.so.1'
        "FAKETIME=@$playDate 08:00:00"
        FAKETIME_DONT_FAKE_MONOTONIC=1
        "ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}verify_asan_link_order=0"
    )
}

SetPlayDate 2026-03-09

BeginPlay() {
    BeginDay "$(mktemp -d -t tessel-play-XXXXXX)"
    trap EndPlay EXIT
    business="$dayFolder/$businessName"
}

# The preloaded clock leaves its shared memory behind when a program ends without ceremony.
RemoveClocks() {
    local process
    for process in "${playProcesses[@]}"; do
        rm -f "/dev/shm/faketime_shm_$process" "/dev/shm/sem.faketime_sem_$process"
    done
}

# For what a test has set up besides; runs when the program has been ended.
CleanUp() { :; }

EndPlay() {
    local status=$?
    if [[ $status -ne 0 ]]; then
        [[ -e $dayFolder/failed.png ]] || import -window root "$dayFolder/failed.png" || true
        printf 'Picture and messages are in %s\n' "$dayFolder" >&2
    fi
    local running
    mapfile -t running <<<"$(jobs -pr)"
    [[ -z ${running[0]} ]] || kill "${running[@]}" 2>/dev/null || true
    StopDay || true
    CleanUp || true
    RemoveClocks
    if [[ $status -eq 0 ]]; then
        chmod -R u+rwX "$dayFolder"
        rm -rf "$dayFolder"
    fi
}

# LayOutBusiness FOLDER: the sample business as it is on the set day.
LayOutBusiness() {
    env LC_ALL="$playLocale" "$sampleMaker" "$1" --date "$playDate"
}

# StartPlay FOLDER [WORD...]: the program on a business, with the words of StartProgram.
StartPlay() {
    local folder=$1
    shift
    StartProgram "$program" "$folder" LC_ALL="$playLocale" "${playClock[@]}" "$@"
    playProcesses+=("$programProcess")
}

# WindowOf PROCESS TITLE: that process's window of that title, or nothing.
WindowOf() {
    local window
    for window in $(Windows); do
        if [[ $(xdotool getwindowpid "$window" 2>/dev/null) == "$1" &&
            $(TitleOf "$window") == "$2" ]]; then
            printf '%s\n' "$window"
            return
        fi
    done
}

# Waits for a window of the program started last.
WaitForWindow() {
    local window i
    for ((i = 0; i < 10 * secondsToWait; i++)); do
        window=$(WindowOf "$programProcess" "$1")
        if [[ -n $window ]]; then
            printf '%s\n' "$window"
            return
        fi
        ProgramRuns || FailDay "the program ended before it showed \"$1\"."
        sleep 0.1
    done
    FailDay "\"$1\" did not appear."
}

# Waits for the title screen of the program started last.
WaitForTitle() {
    titleWindow=$(WaitForWindow "$titleScreen")
}

# AnswerNext TITLE KEY: the next message has that title and goes at that key.
AnswerNext() {
    local window='' title i
    for ((i = 0; i < 10 * secondsToWait; i++)); do
        window=$(FindMessage)
        [[ -z $window ]] || break
        ProgramRuns || FailDay "the program ended before the message \"$1\"."
        sleep 0.1
    done
    [[ -n $window ]] || FailDay "the message \"$1\" did not come up."
    title=$(TitleOf "$window")
    [[ $title == "$1" ]] || FailDay "the message \"$title\" came up instead of \"$1\"."
    Press "$window" "$2"
    WaitUntilGone "$window" "$title"
}

# The title screen's continue action. What the program still has to tell would come first.
Continue() {
    Press "$titleWindow" Return
    WaitForWindow "$menuScreen" >/dev/null
}

# The three recurring slips of the sample that have passed are kept, one after the other, and the
# two that are not recurring go with a notice each.
AnswerPastSlips() {
    local i
    for ((i = 0; i < 3; i++)); do
        AnswerNext "$recurringQuestion" alt+n
        AnswerNext "$notice" Return
    done
    AnswerNext "$notice" Return
    AnswerNext "$notice" Return
}

RemovePastSlips() {
    rm "$1"/TesselDelivery/{Deliveries,DeliveryItems}/2026000[1-5].txt
}

# Type TEXT: into the field that has the keys.
Type() {
    xdotool type --clearmodifiers --delay 20 -- "$1"
}

# Keys KEY...: wherever the keys go.
Keys() {
    xdotool key --clearmodifiers --delay 50 "$@"
}

# Times COUNT KEY: that key, as words for Press and Keys.
Times() {
    local i
    for ((i = 0; i < $1; i++)); do
        printf '%s\n' "$2"
    done
}

# Through the menu bar: Alt opens it at Files, whose first item is the setup screen. Its window is
# in setupWindow afterwards.
OpenSetup() {
    local menu
    menu=$(WaitForWindow "$menuScreen")
    Press "$menu" Alt_L Down Return
    setupWindow=$(WaitForWindow "$setupScreen")
}

# OpenSetupOptions STYLE: to the row of the tabs of the options. The address style of the USA has
# put the keys into the postal code, six places behind the row of the outer tabs; the international
# one has left them on that row.
OpenSetupOptions() {
    local back=()
    [[ $1 != USA ]] || mapfile -t back < <(Times 6 shift+Tab)
    Press "$setupWindow" "${back[@]}" Right Right Tab
}

# Not from the tab of the logo, where another button has that key as well.
SaveSetup() {
    Press "$setupWindow" alt+s
}

# SetTextFile FILE LINE...: each line with its line end, in the code page of the data files.
SetTextFile() {
    local file=$1
    shift
    [[ $# -eq 0 ]] || printf '%s\r\n' "$@" | iconv -f UTF-8 -t WINDOWS-1252 >"$file"
    [[ $# -gt 0 ]] || : >"$file"
}

# EnterFields TEXT...: one after the other, from the field that has the keys.
EnterFields() {
    local text
    for text; do
        [[ -z $text ]] || Type "$text"
        Keys Tab
    done
}

ReplaceText() {
    Keys ctrl+a
    Type "$1"
}

# Click WINDOW X Y [BUTTON]: at that place of the window.
Click() {
    xdotool mousemove --window "$1" "$2" "$3" click "${4:-1}"
    MoveMouseAway
}

# A button pressed by its letter works when it has come up again.
PressButton() {
    Press "$1" "$2"
    sleep 0.4
}

# AnswerBox TITLE KEY: the message of that title, over whatever screen, goes at that key.
AnswerBox() {
    local window
    window=$(WaitForWindow "$1")
    Press "$window" "$2"
    WaitUntilGone "$window" "$1"
}

# ExpectFiles FOLDER: the files there are byte for byte in the data folder.
ExpectFiles() {
    local file
    for file in "$1"/*; do
        cmp "$file" "$business/$(basename "$file")" >&2 ||
            FailDay "$(basename "$file") differs; it should be as in $1."
    done
}

# The window is in productsWindow afterwards.
OpenProducts() {
    local menu
    menu=$(WaitForWindow "$menuScreen")
    Press "$menu" alt+d
    productsWindow=$(WaitForWindow "$productsScreen")
}

# ShowItems KEY...: by that entry of the menu, the first one being the items with a price, the second
# the others. The keys go to Add New.
ShowItems() {
    Press "$productsWindow" Alt_L "$@" Return
}

# ModifyItem ROW: by a click on that row of the items with a price, then Modify, which is behind Add
# New. The keys are in the description.
ModifyItem() {
    xdotool mousemove --window "$productsWindow" 100 $((159 + 27 * $1)) click 1
    MoveMouseAway
    ShowItems Down
    Keys Tab space
}

# Bytes of a record: Text WIDTH TEXT is a text in the code page of the data files with blanks behind
# it, Hex DIGITS... are the bytes as they stand, Zeros COUNT are bytes of zero.
Text() {
    local text
    text=$(printf '%s' "${2:-}" | iconv -f UTF-8 -t WINDOWS-1252)
    LC_ALL=C printf "%-$1s" "$text"
}

Hex() {
    printf '%s' "$@" | xxd -r -p
}

Zeros() {
    head -c "$1" /dev/zero
}

# From the menu to the print of the whole day of the board's first vehicle.
PrintFirstVehicle() {
    local menu board
    menu=$(WaitForWindow "$menuScreen")
    Press "$menu" alt+p
    board=$(WaitForWindow "$boardScreen")
    Press "$board" alt+s
    Press "$board" alt+p
}

# From the board through the menu to the end.
Leave() {
    local board menu
    board=$(WaitForWindow "$boardScreen")
    Press "$board" alt+m
    menu=$(WaitForWindow "$menuScreen")
    LeaveProgram "$menu"
}

# Snapshot FOLDER: a line for each folder of a business and for each file with its checksum.
Snapshot() {
    (
        cd "$1"
        find . -type f -exec sha256sum {} +
        find . ! -type f -printf '%y  %p\n'
    ) | LC_ALL=C sort -k 2
}

# ExpectSame WHAT EXPECTED ACTUAL: both are files.
ExpectSame() {
    diff --unified=1 --label expected --label actual "$2" "$3" >&2 || FailDay "$1 differs."
}

# ExpectBusiness FOLDER WHEN: the data folder is the same as that one.
ExpectBusiness() {
    Snapshot "$1" >"$dayFolder/expected.txt"
    Snapshot "$business" >"$dayFolder/actual.txt"
    ExpectSame "the data folder $2" "$dayFolder/expected.txt" "$dayFolder/actual.txt"
}

# BackUpByHand FOLDER NAME...: what the exit copies of the sample business, and these files.
BackUpByHand() {
    local folder=$1 name
    shift
    for name in CustomerData MyBusinessData Phone PrintColors "$@"; do
        cp "$folder/$name.txt" "$folder/Backup"
    done
}

# WaitForPaper NAME: the PDF of that name in the folder of the documents is whole, and is printed.
WaitForPaper() {
    local paper="$dayFolder/Tessel Delivery/$1" i
    for ((i = 0; i < 10 * secondsToWait; i++)); do
        [[ $(tail -c 6 "$paper" 2>/dev/null) != *%%EOF* ]] || break
        ProgramRuns || FailDay "the program ended before it printed $1."
        sleep 0.1
    done
    [[ -e $paper ]] || FailDay "$1 was not printed."
    printf '%s\n' "$paper"
}

# The lines of a PDF from top to bottom, each from left to right with single blanks, so that the
# fonts of the machine make no difference to them. What a further page repeats of the first page's
# heading, of 7 lines, is left out, as the fonts decide where a page ends.
PageText() {
    pdftotext -tsv "$1" - | LC_ALL=C sed 's/\xef\xac\x81/fi/g; s/\xc2\xa0/ /g' |
        awk -F '\t' '$1 == 5 { print $2 "\t" $8 "\t" $7 "\t" $12 }' |
        LC_ALL=C sort -t $'\t' -k 1,1n -k 2,2n |
        awk -F '\t' '$1 != page || $2 > top + 3 { ++line; page = $1; top = $2 }
            { print line "\t" $3 "\t" $1 "\t" $4 }' |
        LC_ALL=C sort -t $'\t' -k 1,1n -k 2,2n |
        awk -F '\t' '
            function flush() {
                if (page == 1 && row <= 7) heading[row] = text
                if (row > 0 && (page == 1 || row > 7 || text != heading[row])) print text
            }
            $1 != line { flush(); if ($3 != page) row = 0; line = $1; page = $3; ++row; text = $4; next }
            { text = text " " $4 }
            END { flush() }'
}

# ExpectPage PDF FILE: the page says what stands in the file of this folder.
ExpectPage() {
    PageText "$1" >"$dayFolder/page.txt"
    ExpectSame "the printed page" "$endToEndFolder/$2" "$dayFolder/page.txt"
}
