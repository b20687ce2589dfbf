#!/usr/bin/env bash
# A new business from an empty folder: the setup, the first products, vehicles and customers, to which
# the menu leads one after the other, until all of its routines are open; and the changes of the next
# run. Every file is compared byte for byte with what the operator has entered:
# first-business-test.sh PROGRAM SAMPLEMAKER LOCALE

# shellcheck source=tests/endtoend/play.sh
source "$(dirname "${BASH_SOURCE[0]}")/play.sh"

locale=$1
playLocale=$locale.UTF-8

# Zero as an amount, and as the flags of a record: 0 is False, ff ff is True.
none=0000000000000000
no=0000
yes=ffff
# 9 March 2026 is 46,090 days after 30 December 1899.
today=000000004081e640

case $locale in
en_US)
    keyboard=us
    # The address style of the USA has put the keys into the postal code, five behind the name.
    EnterBusiness() {
        Keys shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab
        EnterFields 'Corner Dairy' '12 Mill Road' '' Springfield IL 62704 217-555-0199 '' \
            'FEIN 00-0000000'
    }
    ExpectSettings() {
        SetTextFile MyBusinessData.txt '"Corner Dairy","12 Mill Road","","Springfield","IL","62704","217-555-0199","","FEIN 00-0000000"'
        # shellcheck disable=SC2016  # dollars
        SetTextFile DeliverySettings.txt '0,1,0,1,0,0,#TRUE#,#FALSE#,"$0.00","$0.00","$0.00"'
    }
    firstProduct=('Whole Milk, 1 Gallon' Dairy 2.15 3.49 2.99 24 480 240 96)
    # The most units that fit; nothing costs what is not entered.
    secondProduct=('Ice Block' '' '' .5 0 '' 32767 '' '')
    nonPricedItem=('Empty Crate' 120 40 15)
    newPrice=3.79
    # 3.49 and 3.79
    enteredPrice=5488000000000000
    changedPrice=0c94000000000000
    ExpectFirstProduct() {
        Text 50 'Whole Milk, 1 Gallon'
        Text 20 Dairy
        Hex fc53000000000000 # 2.15
        Hex "$1"
        Hex e001             # 480
        Hex cc74000000000000 # 2.99
        Hex 18000000         # 24
        Hex f000 6000        # 240 and 96
    }
    ExpectSecondProduct() {
        Text 50 'Ice Block'
        Text 20
        Hex "$none" 8813000000000000 ff7f "$none" 00000000 0000 0000 # 0.50 and 32,767
    }
    ExpectNonPricedItem() {
        Text 50 'Empty Crate'
        Hex 7800 2800 0f00
    }
    mixedVehicle=('Flatbed 7' 1250.5 Bundles)
    singleVehicle='Milk Tanker'
    ExpectMixedVehicle() {
        Text 60 'Flatbed 7'
        Text 30 1250.5
        Hex "$yes"
        Text 20 Bundles
        Text 25 N/A
    }
    # The second of the products, the list being in the order of the file.
    ExpectSingleVehicle() {
        Text 60 'Milk Tanker'
        Text 30
        Hex "$no"
        Text 20
        Text 25 'Ice Block'
    }
    newUnit=Bundles
    # Account, name, addresses, city, state, postal code, telephone, the button that calls, cell,
    # e-mail.
    businessAccount=(A-1001 'Corner Grocery' '5 Oak Street' 'Unit 3' Chatham IL 62629-1234
        217-555-0142 '' '' orders@grocery.example)
    # Without a number; title and names; city, state and postal code are those proposed.
    individualAccount=('' Mrs Anna Q Miller '9 Elm Street' '' '' '' '' 217-555-0177 '' 217-555-0178 '')
    # The business before and after it has been shown, as its record is written again then, is the
    # same.
    ExpectBusinessAccount() {
        Text 20 A-1001
        Text 45 'Corner Grocery'
        Text 35 '5 Oak Street'
        Text 25 'Unit 3'
        Text 25 Chatham
        Text 20 Chatham
        Text 2 IL
        Text 10 62629-1234
        Text 25 62629-1234
        Text 13 217-555-0142
        Text 13
        Text 30 orders@grocery.example
        Text 10
        Text 15
        Text 1
        Text 25
        Text 10 Business
        Hex 0100 "$no"
    }
    ExpectIndividualAccount() {
        Text 20 217-555-0177
        Text 45 "$1"
        Text 35 '9 Elm Street'
        Text 25
        Text 25 Springfield
        Text 20 Springfield
        Text 2 IL
        Text 10 62704
        Text 25 62704
        Text 13 217-555-0177
        Text 13 217-555-0178
        Text 30
        Text 10 Mrs
        Text 15 Anna
        Text 1
        Text 25 Miller
        Text 10 Individual
        Hex 0100 "$no"
    }
    fullName='Mrs Anna Miller'
    weekday=Monday
    ;;
de_DE)
    keyboard=de
    # The button under the fields leads to the style without a postal code.
    EnterBusiness() {
        mapfile -t keys < <(Times 4 Tab)
        Keys "${keys[@]}" space
        mapfile -t keys < <(Times 8 shift+Tab)
        Keys "${keys[@]}"
        EnterFields 'Süßwaren Görlitz, Inh. Böhm' 'Mühlstraße 7' '' '02826 Görlitz' Sachsen \
            '03581 555 0199' '' 'DE 000000000'
    }
    ExpectSettings() {
        SetTextFile MyBusinessData.txt '"Süßwaren Görlitz, Inh. Böhm","Mühlstraße 7","","02826 Görlitz","Sachsen","","03581 555 0199","","DE 000000000"'
        SetTextFile DeliverySettings.txt $'0,1,0,1,0,0,#TRUE#,#FALSE#,"0,00\u00a0€","0,00\u00a0€","0,00\u00a0€"'
    }
    firstProduct=('Käse, Laib zu 5 kg' Molkerei '1.234,5' '2345,67' 2.000 24 480 240 96)
    secondProduct=('Stangeneis' '' '' ',5' 0 '' 32767 '' '')
    nonPricedItem=('Leere Kiste' 120 40 15)
    newPrice=2.345,68
    # 2,345.67 and 2,345.68
    enteredPrice=bceb650100000000
    changedPrice=20ec650100000000
    ExpectFirstProduct() {
        Text 50 'Käse, Laib zu 5 kg'
        Text 20 Molkerei
        Hex a85ebc0000000000 # 1,234.50
        Hex "$1"
        Hex e001             # 480
        Hex 002d310100000000 # 2,000.00
        Hex 18000000         # 24
        Hex f000 6000        # 240 and 96
    }
    ExpectSecondProduct() {
        Text 50 Stangeneis
        Text 20
        Hex "$none" 8813000000000000 ff7f "$none" 00000000 0000 0000 # 0.50 and 32,767
    }
    ExpectNonPricedItem() {
        Text 50 'Leere Kiste'
        Hex 7800 2800 0f00
    }
    mixedVehicle=('Kühlwagen Süd' 850 Kübel)
    singleVehicle='Pritsche 2'
    ExpectMixedVehicle() {
        Text 60 'Kühlwagen Süd'
        Text 30 850
        Hex "$yes"
        Text 20 Kübel
        Text 25 N/A
    }
    ExpectSingleVehicle() {
        Text 60 'Pritsche 2'
        Text 30
        Hex "$no"
        Text 20
        Text 25 Stangeneis
    }
    newUnit=Kübel
    # Account, name, addresses 1 to 4, telephone, the button that calls, cell, e-mail.
    businessAccount=(K-1 'Bäckerei Groß & Söhne' 'Untermarkt 3' Hinterhaus '02826 Görlitz'
        Sachsen 03581-555-14 '' '' bestellung@gross.example)
    individualAccount=('' Frau Jördis X Müller 'Elbstraße 9' '' '02827 Görlitz' Sachsen
        03581-555-77 '' 0151-555-078 '')
    # Both styles' fields are filled when a record is shown, and the other style's are written too.
    ExpectBusinessAccount() {
        local city='' postal=''
        if [[ $1 != entered ]]; then
            city='02826 Görlitz'
            postal=Sachsen
        fi
        Text 20 K-1
        Text 45 'Bäckerei Groß & Söhne'
        Text 35 'Untermarkt 3'
        Text 25 Hinterhaus
        Text 25 '02826 Görlitz'
        Text 20 "$city"
        Text 2
        Text 10 "$postal"
        Text 25 Sachsen
        Text 13 03581-555-14
        Text 13
        Text 30 bestellung@gross.example
        Text 10
        Text 15
        Text 1
        Text 25
        Text 10 Business
        Hex 0100 "$no"
    }
    # The city proposed is the business's own. It stands in the field of the other style.
    ExpectIndividualAccount() {
        local city='02826 Görlitz' postal=''
        if [[ -n $1 ]]; then
            city='02827 Görlitz'
            postal=Sachsen
        fi
        Text 20 03581-555-77
        Text 45 "$1"
        Text 35 'Elbstraße 9'
        Text 25
        Text 25 '02827 Görlitz'
        Text 20 "$city"
        Text 2
        Text 10 "$postal"
        Text 25 Sachsen
        Text 13 03581-555-77
        Text 13 0151-555-078
        Text 30
        Text 10 Frau
        Text 15 Jördis
        Text 1
        Text 25 Müller
        Text 10 Individual
        Hex 0100 "$no"
    }
    fullName='Frau Jördis Müller'
    weekday=Montag
    ;;
*) Fail "There is no business for $locale." ;;
esac

# Of an account entered after the first; nothing has ever been assigned to the bytes of zero.
ExpectContractDefaults() {
    Text 35 'None Selected'
    Text 15 None
    Hex "$none"
    Text 9 "$weekday"
    Text 40 'None Selected'
    Hex "$today" "$today" "$no" "$yes" "$no"
    Text 20 None
    Text 50
    Zeros 35
    Text 100
    Hex "$no"
    Text 50
}

ExpectCycleDefaults() {
    Text 35 None
    Hex "$none" "$no"
    Text 20
    Hex "$no" "$yes"
}

# ExpectProducts PRICE: of the first one, as the record has it.
ExpectProducts() {
    {
        ExpectFirstProduct "$1"
        ExpectSecondProduct
    } >"$expected/NXInventoriedItems.txt"
    ExpectNonPricedItem >"$expected/NonInventoriedItems.txt"
    ExpectFiles "$expected"
}

# ExpectVehicles [RULE]: the mixed one, and the other one by that rule. A blank unit is that of the
# vehicle with one product; the list keeps it.
ExpectVehicles() {
    {
        ExpectMixedVehicle
        "${1:-:}"
    } >"$expected/Vehicles.txt"
    SetTextFile "$expected/Capacity.txt" '"lbs"' '"Gallons"' '"Cubic Yards"' '"Linear Feet"' \
        '"Cubic Meters"' '"Units"' '"Cartons"' '"Square Ft"' '"Pallets"' "\"$newUnit\"" '""'
    ExpectFiles "$expected"
}

# ExpectCustomers entered|shown|left [NAME]: the business as it is by then, and the individual with
# that name of the business; without one the business alone. The first account of all is written from
# records that nothing has been assigned to; and when the screen is opened again and left, it is
# written once more without having been shown, and gets the defaults.
ExpectCustomers() {
    local contract='Zeros 386' cycle='Zeros 69'
    if [[ $1 == left ]]; then
        contract=ExpectContractDefaults
        cycle=ExpectCycleDefaults
    fi
    {
        ExpectBusinessAccount "$1"
        [[ $# -lt 2 ]] || ExpectIndividualAccount "$2"
    } >"$expected/CustomerData.txt"
    {
        $contract
        [[ $# -lt 2 ]] || ExpectContractDefaults
    } >"$expected/ContractInfo.txt"
    {
        $cycle
        [[ $# -lt 2 ]] || ExpectCycleDefaults
    } >"$expected/CycleInfo.txt"
    ExpectFiles "$expected"
}

# The message comes over the title screen. The picture of the welcome panel leads to the setup.
OpenSetupFromWelcomePanel() {
    WaitForTitle
    AnswerNext 'Create Customers' Return
    # Until the bar has run through.
    sleep 1.5
    Press "$titleWindow" Return
    sleep 0.5
    Press "$titleWindow" Tab Tab space
    setupWindow=$(WaitForWindow "$setupScreen")
}

SetUpBusiness() {
    OpenSetupFromWelcomePanel
    FocusWindow "$setupWindow"
    EnterBusiness
    SaveSetup
    (
        cd "$expected"
        ExpectSettings
        SetTextFile Settings.txt 8 5 '#TRUE#' '#TRUE#' '#FALSE#'
        SetTextFile TaxSettings.txt '"Sales Tax","Tax","4.0","4.0",0,0'
        SetTextFile PrintColors.txt 0 0 '"Arial"' '#TRUE#' 3
        SetTextFile Prompts.txt '#TRUE#,#TRUE#'
        SetTextFile WorkDays.txt 5
        SetTextFile Phone.txt '#FALSE#' 1
    )
}

# EnterItem TEXT...: from Add New to the first field, with Enter from field to field and to Save.
# The keys come back to Add New.
EnterItem() {
    local text
    Keys space
    for text; do
        [[ -z $text ]] || Type "$text"
        Keys Return
    done
    Keys Return
    sleep 0.3
}

# Menu is before Add New.
LeaveProducts() {
    ShowItems Down
    Press "$productsWindow" shift+Tab space
}

EnterProducts() {
    productsWindow=$(WaitForWindow "$productsScreen")
    FocusWindow "$productsWindow"
    EnterItem "${firstProduct[@]}"
    EnterItem "${secondProduct[@]}"
    ShowItems Down Down
    EnterItem "${nonPricedItem[@]}"
    LeaveProducts
}

# The screen opens on a new vehicle. A capacity and a unit entered for the vehicle with one product
# are dropped.
EnterVehicles() {
    vehiclesWindow=$(WaitForWindow "$vehiclesScreen")
    FocusWindow "$vehiclesWindow"
    Type "${mixedVehicle[0]}"
    Keys Return space Return
    Type "${mixedVehicle[1]}"
    Keys Return
    ReplaceText "${mixedVehicle[2]}"
    Keys Return Return
    # From Save back over Cancel to Add New.
    Keys shift+Tab shift+Tab space
    Type "$singleVehicle"
    Keys Return Return
    Type 99
    Keys Return
    ReplaceText Pallets
    Keys Return Down Down Return Return
    Press "$vehiclesWindow" alt+m
}

# From the number of the account; the button before it makes an account a business.
EnterCustomers() {
    customersWindow=$(WaitForWindow "$customersScreen")
    Press "$customersWindow" shift+Tab space
    EnterFields "${businessAccount[@]}"
    # The first entry of the menu adds another customer, which saves this one.
    Press "$customersWindow" Alt_L Down Return
    EnterFields "${individualAccount[@]}"
    ExpectCustomers entered
    # Behind the fields and the four buttons that find a customer: to the first one, and so the second
    # is saved. It goes by its telephone number.
    Keys Tab Tab Tab Tab space
    AnswerBox 'Account not Entered' Return
    ExpectCustomers entered ''
}

# ShowCustomer STEPS: by the button that many places before the one that has the keys. Whenever an
# account is shown, that is the one that selects it.
ShowCustomer() {
    local keys
    mapfile -t keys < <(Times "$1" shift+Tab)
    Press "$customersWindow" "${keys[@]}" space
    sleep 0.5
}

# Both records are written again when they are left. An individual's then has his name as that of a
# business, too. Leaving the screen takes back the count of the account that was added, and writes
# the one that is shown.
ShowCustomersAgain() {
    ShowCustomer 10
    ShowCustomer 11
    Press "$customersWindow" alt+m
    menuWindow=$(WaitForWindow "$menuScreen")
    ExpectCustomers shown "$fullName"
}

ExpectClosed() {
    local key
    for key; do
        Press "$menuWindow" "$key"
        sleep 0.3
        [[ $(Windows) == "$menuWindow" ]] || FailDay "$key opens a routine of the menu."
    done
}

# ExpectOpen KEY TITLE: and back.
ExpectOpen() {
    local screen
    Press "$menuWindow" "$1"
    screen=$(WaitForWindow "$2")
    if [[ $2 == "$productsScreen" ]]; then
        LeaveProducts
    else
        Press "$screen" alt+m
    fi
    menuWindow=$(WaitForWindow "$menuScreen")
}

# In the order of the categories the first product is the second row, as the other one has none. The
# price is the fourth of the fields.
ChangePrice() {
    OpenProducts
    ModifyItem 2
    Keys Return Return Return
    ReplaceText "$newPrice"
    Keys Return Return Return Return Return Return Return
    sleep 0.3
    LeaveProducts
    menuWindow=$(WaitForWindow "$menuScreen")
    ExpectProducts "$changedPrice"
}

# Enter on a row opens Delete, five places before the fields.
DeleteVehicle() {
    local keys
    Press "$menuWindow" alt+v
    vehiclesWindow=$(WaitForWindow "$vehiclesScreen")
    Press "$vehiclesWindow" Down Return
    mapfile -t keys < <(Times 5 shift+Tab)
    Keys "${keys[@]}" space
    AnswerBox 'Delete Sales Item' alt+y
    ExpectVehicles
    Press "$vehiclesWindow" alt+m
    menuWindow=$(WaitForWindow "$menuScreen")
    ExpectVehicles
}

# The keys begin in the number, from which the way back leads round to the buttons at the foot. The
# button of the last record is before them; the second entry of the menu deletes what is shown.
DeleteCustomer() {
    Press "$menuWindow" alt+u
    customersWindow=$(WaitForWindow "$customersScreen")
    ShowCustomer 10
    Press "$customersWindow" Alt_L Down Down Return
    AnswerBox "$notice" alt+y
    ExpectCustomers left
    Press "$customersWindow" alt+m
    menuWindow=$(WaitForWindow "$menuScreen")
    ExpectCustomers left
}

# ExpectFolder [FOLDER...]: what is expected, with the safety copy of the exit, in a data folder that
# has these besides the folders of every start.
ExpectFolder() {
    local tree=$dayFolder/tree name
    rm -rf "$tree"
    mkdir -p "$tree"/{2026,AuxFiles,Backup/{NXActiveAccounts,tessel-delivery},NXActiveAccounts} \
        "$tree"/{Templates/Deliveries,TesselDelivery/{Deliveries,DeliveryItems}}
    for name; do
        mkdir "$tree/$name"
    done
    cp "$expected"/* "$tree"
    # Of the exit's list, what there is.
    for name in CustomerData MyBusinessData Phone PrintColors; do
        cp "$expected/$name.txt" "$tree/Backup"
    done
    Snapshot "$tree" >"$dayFolder/expected.txt"
    Snapshot "$business" >"$dayFolder/actual.txt"
    ExpectSame "the data folder after the exit" "$dayFolder/expected.txt" "$dayFolder/actual.txt"
}

vehiclesScreen='Vehicle Creation Screen'

expected=''
menuWindow=''
vehiclesWindow=''
customersWindow=''

BeginPlay
setxkbmap "$keyboard"
expected=$dayFolder/expected
mkdir "$business" "$expected"

StartPlay "$business"
SetUpBusiness
# There are no products yet.
AnswerBox "$notice" Return
ExpectFiles "$expected"
EnterProducts
# There are no vehicles yet.
AnswerBox "$notice" Return
ExpectProducts "$enteredPrice"
EnterVehicles
menuWindow=$(WaitForWindow "$menuScreen")
ExpectVehicles ExpectSingleVehicle

# The panel about the customers leaves them as the only routine of the first seven, and the reports.
ExpectClosed alt+p alt+s alt+h alt+v alt+c alt+d
Press "$menuWindow" alt+u
EnterCustomers
ShowCustomersAgain

ExpectOpen alt+p "$boardScreen"
ExpectOpen alt+u "$customersScreen"
ExpectOpen alt+h "$holidaysScreen"
ExpectOpen alt+v "$vehiclesScreen"
ExpectOpen alt+c "$customersScreen"
ExpectOpen alt+d "$productsScreen"
ExpectCustomers left "$fullName"
LeaveProgram "$menuWindow"
# The board shows the first invoice number of the year, which begins the counter, and there are no
# holidays.
SetTextFile "$expected/NXInvoiceNo.txt" 20260001
SetTextFile "$expected/Holidays.txt"
ExpectFolder

StartPlay "$business"
WaitForTitle
Continue
menuWindow=$(WaitForWindow "$menuScreen")
ChangePrice
DeleteVehicle
DeleteCustomer
LeaveProgram "$menuWindow"
ExpectFolder AuxFiles/'AcctNo 1' AuxFiles/'AcctNo 2'
