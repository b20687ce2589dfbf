#!/usr/bin/env bash
# A new business from the title screen's welcome panel through the setup screen to its saved
# settings, the holidays, and the setup screen of the next run: setup-test.sh PROGRAM SAMPLEMAKER
# LOCALE

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

locale=$1
playLocale=$locale.UTF-8

expected=''
tabPictures=(Printing Taxation 'Phone and Modem' 'Work Days' Deliveries/Invoicing
    'Program Assistance')

# The operator's part. The keys count from the field that is told of; each ends where the comment
# of the next one begins.
case $locale in
en_US)
    keyboard=us
    style=USA
    # From the company's name to the last field. The state takes two letters and refuses the rest.
    EnterBusiness() {
        EnterFields 'Corner Dairy' '12 Mill Road' '' Springfield ILL 62704 217-555-0199 '' \
            'FEIN 00-0000000'
    }
    # From the rate of the first tax; the heading of the second comes before its own in the list.
    EnterTaxes() {
        ReplaceText 6.25
        Keys Tab space Tab Up Tab
        ReplaceText 1,5
    }
    # From Caller ID: that, and the telephone behind the port.
    EnterPhone() { Keys space Tab Tab space; }
    EnterWorkDays() { Keys Down; }
    # From the first box of the tab: both boxes, the charge, and the past deliveries.
    EnterDeliveries() {
        Keys space Tab space Tab
        Type 12.5
        Keys Tab space
    }
    # The prompts go, the alarm stays; and back to the row of the tabs.
    EnterAssistance() { Keys Tab space shift+Tab shift+Tab; }
    papers=(Tab Tab space)
    ExpectedSettings() {
        SetTextFile MyBusinessData.txt '"Corner Dairy","12 Mill Road","","Springfield","IL","62704","217-555-0199","","FEIN 00-0000000"'
        SetTextFile Settings.txt 8 61 '#TRUE#' '#TRUE#' '#TRUE#'
        # shellcheck disable=SC2016  # dollars
        SetTextFile DeliverySettings.txt '1,0,0,1,1,1,#FALSE#,#TRUE#,"$0.00","$0.00","$12.50"'
        SetTextFile TaxSettings.txt '"Sales Tax","County Tax","6.25","1,5",1,0'
        SetTextFile PrintColors.txt 0 0 '"Arial"' '#TRUE#' 2
        SetTextFile Prompts.txt '#FALSE#,#TRUE#'
        SetTextFile WorkDays.txt 61
        SetTextFile Phone.txt '#TRUE#' 1
    }
    levelSettings=(8 61 '#TRUE#' '#FALSE#' '#TRUE#')
    # The box of Caller ID is never restored, so its tab looks different.
    tabPictures[2]=''
    copies=2
    ;;
de_DE)
    keyboard=de
    style=International
    # The button under the fields leads to the style without a postal code.
    EnterBusiness() {
        mapfile -t keys < <(Times 9 Tab)
        Keys "${keys[@]}" space
        mapfile -t keys < <(Times 8 shift+Tab)
        Keys "${keys[@]}"
        EnterFields 'Süßwaren Görlitz, Inh. Böhm' 'Mühlstraße 7' '' '02826 Görlitz' Sachsen \
            '03581 555 0199' '' 'DE 000000000'
    }
    # From the rate of the first tax: the comma's 5 from the list of the second; then the limit and
    # the surcharge of the scheme. Its panel closes, and the keys come back from where it was.
    EnterTaxes() {
        ReplaceText 19
        Keys Tab space Tab Tab Down Down Down Down Tab Tab space Tab space
        ReplaceText 1000,5
        Keys Tab
        ReplaceText 25
        Keys Tab Tab space shift+Tab
    }
    # The telephone behind the port.
    EnterPhone() { Keys Tab Tab space; }
    # Sunday to Friday, and on the same date instead of the same weekday.
    EnterWorkDays() { Keys Down Down Tab space; }
    # The field refuses the comma.
    EnterDeliveries() {
        Keys space Tab space Tab
        Type 12,
        Keys Tab
    }
    # The alarm goes, the prompts stay; and back to the row of the tabs.
    EnterAssistance() { Keys space shift+Tab; }
    papers=()
    ExpectedSettings() {
        SetTextFile MyBusinessData.txt '"Süßwaren Görlitz, Inh. Böhm","Mühlstraße 7","","02826 Görlitz","Sachsen","","03581 555 0199","","DE 000000000"'
        SetTextFile Settings.txt 8 62 '#TRUE#' '#TRUE#' '#FALSE#'
        SetTextFile DeliverySettings.txt $'1,1,1,0,1,1,#TRUE#,#FALSE#,"1.000,50\u00a0€","25,00\u00a0€","12,00\u00a0€"'
        SetTextFile TaxSettings.txt '"Sales Tax","Tax","19","5,0",1,0'
        SetTextFile PrintColors.txt 0 0 '"Arial"' '#TRUE#' 4
        SetTextFile Prompts.txt '#TRUE#,#FALSE#'
        SetTextFile WorkDays.txt 62
        SetTextFile Phone.txt '#TRUE#' 1
    }
    levelSettings=(8 62 '#FALSE#' '#TRUE#' '#FALSE#')
    copies=4
    ;;
*) Fail "There are no settings for $locale." ;;
esac

# By the picture of the welcome panel, which the keys reach behind the one of the title.
OpenSetupFromWelcomePanel() {
    WaitForTitle
    # Told at every start until there is a customer.
    AnswerNext 'Create Customers' Return
    # Until the bar has run through.
    sleep 1.5
    Press "$titleWindow" Return
    sleep 0.5
    Press "$titleWindow" Tab Tab space
    setupWindow=$(WaitForWindow "$setupScreen")
}

# Name and telephone are required. The way from the button leads round to the name afterwards.
SaveTooEarly() {
    Snapshot "$business" >"$dayFolder/before.txt"
    SaveSetup
    AnswerNext 'Missing Name or Telphone' Return
    Snapshot "$business" >"$dayFolder/after.txt"
    ExpectSame "the data folder after the refused save" "$dayFolder/before.txt" \
        "$dayFolder/after.txt"
    Press "$setupWindow" Tab Tab
}

# Two halves of a colour each, 200 by 100 dots.
MakeLogo() {
    convert -size 100x100 "xc:$leftColor" "xc:$rightColor" +append "BMP3:$business/logo.bmp"
}

# The tab before the first is the last. The first place there is the view of the file.
EnterLogo() {
    local dialog
    Press "$setupWindow" ctrl+shift+Tab
    Keys Tab space
    dialog=$(WaitForWindow Open)
    Type logo.bmp
    Keys Return
    WaitUntilGone "$dialog" Open
    Keys Tab space
    AnswerNext "$notice" Return
    # From Clear to the width: two steps larger; and to the height: three steps smaller.
    Press "$setupWindow" Tab Tab Tab space space Tab space space space
    Keys Tab Tab Tab Tab Tab space
}

# ColorAt X Y: of the printed page's picture, of 100 dots to the inch.
ColorAt() {
    convert "$dayFolder/sample.png" -format "%[hex:u.p{$1,$2}]" info:- | tr '[:upper:]' '[:lower:]'
}

# ExpectColor X Y WHAT COLOR: nearly, as pictures lose a little when they are packed for the page.
ExpectColor() {
    local color
    color="#$(ColorAt "$1" "$2")"
    compare -fuzz 3% -metric AE "xc:$color" "xc:$4" null: 2>/dev/null ||
        FailDay "$3 at $1, $2 is $color instead of $4."
}

# A logo of 3,000 twips at its own size begins at (12,240 - 3,000) / 2, and 720 below the edge; it
# was made 1,540 wide and 1,290 high.
ExpectSample() {
    local pdf
    pdf=$(WaitForPdf)
    [[ $pdf == "$dayFolder/Tessel Delivery/Print Sample.pdf" ]] || FailDay "the sample is in $pdf."
    pdftoppm -r 100 -png -singlefile "$pdf" "$dayFolder/sample"
    ExpectColor 323 52 "the logo's upper left corner" "$leftColor"
    ExpectColor 323 137 "the logo's lower left corner" "$leftColor"
    ExpectColor 425 52 "the logo's upper right corner" "$rightColor"
    ExpectColor 425 137 "the logo's lower right corner" "$rightColor"
    local x
    for x in 317 431; do
        ExpectColor "$x" 95 'the paper beside the logo' '#ffffff'
    done
    ExpectColor 374 46 'the paper above the logo' '#ffffff'
    ExpectColor 374 144 'the paper below the logo' '#ffffff'
    # Each frame at its left and its right edge.
    local blue='#000080' lightBlue='#0000ff'
    ExpectFrame 200 75 375 "$lightBlue"
    ExpectFrame 200 400 750 "$lightBlue"
    ExpectFrame 500 75 750 "$lightBlue"
    ExpectFrame 90 600 750 "$blue"
    ExpectFrame 900 75 750 "$blue"
    rm "$pdf"
}

# ExpectFrame Y LEFT RIGHT COLOR: a line is less than a dot wide there, and may lie in the next one.
ExpectFrame() {
    local x
    for x in "$2" "$3"; do
        local near
        near="#$(ColorAt $((x - 1)) "$1") #$(ColorAt "$x" "$1") #$(ColorAt $((x + 1)) "$1")"
        [[ " $near " == *" $4 "* ]] || FailDay "no frame of $4 at $x, $1 but $near."
        ExpectColor $((x + 4)) "$1" "the paper beside the frame" '#ffffff'
        ExpectColor $((x - 4)) "$1" "the paper beside the frame" '#ffffff'
    done
}

# The tab before the last. The keys begin on its first sub-tab, and go to the first field of each
# further one.
EnterOptions() {
    local dialog
    # Behind the three buttons that change the look: colour. Back to the text colour, which stays
    # black, and on to copies and paper.
    Press "$setupWindow" ctrl+shift+Tab
    Keys Tab Tab Tab Tab space shift+Tab shift+Tab space
    dialog=$(WaitForWindow 'Select Color')
    Press "$dialog" Return
    WaitUntilGone "$dialog" 'Select Color'
    Press "$setupWindow" Tab Tab Tab
    ReplaceText "$copies"
    [[ ${#papers[@]} -eq 0 ]] || Keys "${papers[@]}"
    Keys ctrl+Tab Tab
    EnterTaxes
    Keys ctrl+Tab
    EnterPhone
    Keys ctrl+Tab
    EnterWorkDays
    Keys ctrl+Tab
    EnterDeliveries
    Keys ctrl+Tab
    EnterAssistance
}

# TakeTabPictures NAME: from the last of the sub-tabs once around, their row having the keys. The
# band at the head is left out, which has no name of the business before the first save.
TakeTabPictures() {
    local i
    for i in "${!tabPictures[@]}"; do
        Press "$setupWindow" ctrl+Tab
        sleep 0.5
        import -window "$setupWindow" -crop +0+50 +repage "$dayFolder/$1-$i.png"
    done
}

# ExpectSamePictures NAME NAME
ExpectSamePictures() {
    local i dots
    for i in "${!tabPictures[@]}"; do
        [[ -n ${tabPictures[i]} ]] || continue
        dots=$(compare -metric AE "$dayFolder/$1-$i.png" "$dayFolder/$2-$i.png" null: 2>&1 || true)
        [[ $dots == 0 ]] || FailDay "the tab ${tabPictures[i]} looks different in $dots dots."
    done
}

# There are no products yet, so the menu leads on to them. A version without their screen says so;
# one with it shows it, and its close box ends the program as well.
LeaveByProducts() {
    AnswerNext "$notice" Return
    sleep 1
    local window
    window=$(FindMessage)
    if [[ -n $window && $(TitleOf "$window") == "$notice" ]]; then
        AnswerNext "$notice" Return
    fi
    Keys alt+F4
    WaitForEnd
    [[ $programStatus -eq 0 ]] || FailDay "the program ended with status $programStatus."
}

# The three files that the menu asks for, and those that belong to them.
BringMasterFiles() {
    local name
    LayOutBusiness "$dayFolder/sample"
    for name in NXInventoriedItems NonInventoriedItems Vehicles CustomerData \
        ContractInfo CycleInfo; do
        cp "$dayFolder/sample/$name.txt" "$business"
    done
}

OpenHolidays() {
    local menu
    menu=$(WaitForWindow "$menuScreen")
    Press "$menu" alt+h
    holidaysWindow=$(WaitForWindow "$holidaysScreen")
}

ExpectHolidays() {
    SetTextFile "$dayFolder/holidays" "$@"
    cmp "$dayFolder/holidays" "$business/Holidays.txt" >&2 ||
        FailDay "Holidays.txt should hold: $*"
}

# The calendar begins at the set day, a Monday, and takes a day with the space bar or Enter.
EnterHolidays() {
    SetTextFile "$business/Holidays.txt" '#2025-12-25#' '#2026-12-25#' '#2026-03-08#'
    OpenHolidays
    # Merely opening the screen drops what is past.
    ExpectHolidays '#2026-12-25#'
    Press "$holidaysWindow" Down space alt+m
    OpenHolidays
    ExpectHolidays '#2026-12-25#'
    # Sunday is past; a day that is listed is not listed again.
    Press "$holidaysWindow" Left space Right space Down Return Return Right space alt+s
    AnswerNext "$notice" Return
    WaitForWindow "$menuScreen" >/dev/null
    ExpectHolidays '#2026-12-25#' '#2026-03-09#' '#2026-03-16#' '#2026-03-17#'
}

leftColor='#c81e1e'
rightColor='#1e64c8'
holidaysWindow=''

BeginPlay
setxkbmap "$keyboard"
expected=$dayFolder/expected
mkdir "$business" "$expected"
(cd "$expected" && ExpectedSettings)
SetTextFile "$expected/CompanyLogo.txt" "\"$business/logo.bmp\""
SetTextFile "$expected/LogoSettings.txt" 1540,1290
MakeLogo

StartPlay "$business"
OpenSetupFromWelcomePanel
SaveTooEarly
EnterBusiness
EnterLogo
ExpectSample
EnterOptions
TakeTabPictures first
SaveSetup
LeaveByProducts
ExpectFiles "$expected"

BringMasterFiles
StartPlay "$business"
WaitForTitle
Continue
EnterHolidays

# A save of what was loaded changes nothing, the copy of a flag in Settings.txt least of all: it is
# written before the check boxes are looked at. The next save of the same run levels it.
OpenSetup
OpenSetupOptions "$style"
mapfile -t keys < <(Times 5 ctrl+Tab)
Press "$setupWindow" "${keys[@]}"
TakeTabPictures second
ExpectSamePictures first second
SaveSetup
WaitForWindow "$menuScreen" >/dev/null
ExpectFiles "$expected"
OpenSetup
SaveSetup
menu=$(WaitForWindow "$menuScreen")
SetTextFile "$expected/Settings.txt" "${levelSettings[@]}"
ExpectFiles "$expected"
LeaveProgram "$menu"

# The exit's list, of these files.
for name in CompanyLogo LogoSettings MyBusinessData Phone PrintColors; do
    cmp "$expected/$name.txt" "$business/Backup/$name.txt" >&2 || FailDay "Backup lacks $name.txt."
done
