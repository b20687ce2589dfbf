#!/usr/bin/env bash
# Font and colours chosen on the setup screen, and what of them is on the printed schedule:
# look-test.sh PROGRAM SAMPLEMAKER

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

# The sample's border colour, and the choice.
sampleBorder='11 110 105'
border='32 96 160'
text='180 70 30'
# As the file has them, with blue in the highest byte and red in the lowest.
borderNumber=10510368
textNumber=1984180

# ChooseColor COLOR: in the dialog, as "red green blue".
ChooseColor() {
    local dialog color
    # shellcheck disable=SC2086  # three words
    printf -v color '#%02x%02x%02x' $1
    dialog=$(WaitForWindow 'Select Color')
    Press "$dialog" alt+h ctrl+a
    Type "$color"
    Keys Return
    WaitUntilGone "$dialog" 'Select Color'
}

# Typing in the list of the fonts looks for the name.
ChooseFont() {
    local dialog
    dialog=$(WaitForWindow 'Select Font')
    FocusWindow "$dialog"
    Type "$1"
    Keys Return
    WaitUntilGone "$dialog" 'Select Font'
}

# The colours of the first page that are no grey, as lines of "red green blue".
ColorsOf() {
    pdftoppm -r 100 -png -singlefile "$1" "$dayFolder/page"
    convert "$dayFolder/page.png" -depth 8 rgb:- | od -An -v -tu1 -w3 |
        awk '$1 != $2 || $2 != $3 { print $1, $2, $3 }' | sort -u
}

# ExpectSchedule WHEN [COLOR]: the rules have that colour, as "red green blue", and there is no
# other; without one all is grey. The schedule has a font of its own, which every machine
# answers with its plain one, so the chosen font is not on it.
ExpectSchedule() {
    local pdf fonts colors
    PrintFirstVehicle
    pdf=$(WaitForPdf)
    fonts=$(pdffonts "$pdf" | awk 'NR > 2 { print $1 }' | sort -u | tr '\n' ' ')
    [[ $fonts == *Sans* && $fonts != *Serif* ]] || FailDay "$1 the fonts are $fonts."
    colors=$(ColorsOf "$pdf")
    rm "$pdf"
    [[ $colors == "${2:-}" ]] || FailDay "$1 the colours of the page are: ${colors:-none}."
    ReturnToMenu
}

ReturnToMenu() {
    local board
    board=$(WaitForWindow "$boardScreen")
    Press "$board" alt+m
    menuWindow=$(WaitForWindow "$menuScreen")
}

ExpectPrintColors() {
    SetTextFile "$dayFolder/look" "$@"
    cmp "$dayFolder/look" "$business/PrintColors.txt" >&2 || FailDay "PrintColors.txt differs."
}

menuWindow=''

BeginPlay
LayOutBusiness "$business"
RemovePastSlips "$business"

StartPlay "$business"
WaitForTitle
Continue
OpenSetup
OpenSetupOptions USA
Keys Tab space
ChooseFont 'Liberation Serif'
Press "$setupWindow" Tab space
ChooseColor "$text"
Press "$setupWindow" Tab space
ChooseColor "$border"
SaveSetup
WaitForWindow "$menuScreen" >/dev/null
ExpectPrintColors "$borderNumber" "$textNumber" '"Liberation Serif"' '#TRUE#' 1

# The colour that rules are drawn in is the border colour of the start.
ExpectSchedule 'Before a restart' "$sampleBorder"
LeaveProgram "$menuWindow"
StartPlay "$business"
WaitForTitle
Continue
ExpectSchedule 'After a restart' "$border"

# Behind the three buttons of the look.
OpenSetup
OpenSetupOptions USA
Keys Tab Tab Tab Tab space
SaveSetup
ExpectSchedule 'Without colour'
LeaveProgram "$menuWindow"
