# shellcheck shell=bash
# A print server of one's own, to be sourced by bash:
#
#     . print-server.sh
#     trap StopPrintServer EXIT
#     StartPrintServer "$folder"
#     ... print ...
#     WaitForPrintedJobs 1
#
# All of it lives in the given folder, which must be there: settings, socket, spool, logs, and the
# printed jobs in "$folder/printed". The machine's own print server is neither used nor touched.
# There are two queues, "PDF", which is the default printer, and "Laser". Both take jobs through the
# usual filters.
#
# Its back end is a script that stores what comes out of the filters: the machine's own PDF back
# end knows no other settings than those in /etc, and would print into the user's home.
#
# A default printer that the user has chosen for himself, in HOME, goes before the server's; so let
# HOME be a fresh folder. Needs the packages cups and cups-client. Runs as root and as any other
# user.

PrintServerFolder=
PrintServerProcess=

# Starts the server, waits until it answers, and points CUPS_SERVER at it for all that is started
# afterwards. Not to be called in a subshell: the server ends with the shell that started it.
StartPrintServer() {
    PrintServerFolder=$(cd "$1" && pwd) || return
    # The filters run as a user of their own, who has to get at the spool.
    chmod a+rx "$PrintServerFolder" || return
    mkdir -p "$PrintServerFolder"/{root/ppd,spool/tmp,cache,state,log,bin/backend,printed} || return
    WritePrintServerSettings || return
    WritePrintServerQueue || return
    WritePrintServerBackEnd || return
    LinkPrintServerPrograms || return

    # These would put another printer in the place of the server's default.
    unset LPDEST PRINTER
    export CUPS_SERVER=$PrintServerFolder/cups.sock
    setpriv --pdeathsig TERM "$PrintServerFolder/cupsd" -f \
        -c "$PrintServerFolder/root/cupsd.conf" -s "$PrintServerFolder/root/cups-files.conf" \
        </dev/null >"$PrintServerFolder/log/output" 2>&1 &
    PrintServerProcess=$!
    WaitUntil 30 PrintServerAnswers && return
    echo "The print server doesn't answer:" >&2
    cat "$PrintServerFolder"/log/* >&2
    StopPrintServer
    return 1
}

StopPrintServer() {
    [[ $PrintServerProcess ]] || return 0
    kill "$PrintServerProcess" 2>/dev/null || true
    WaitUntil 10 PrintServerHasEnded || kill -KILL "$PrintServerProcess" 2>/dev/null || true
    wait "$PrintServerProcess" 2>/dev/null || true
    PrintServerProcess=
    unset CUPS_SERVER
}

# Waits until that many jobs lie in the folder "printed", each a file "<job number> <title>.pdf" with
# a file "<job number>.options" that tells what was asked for.
WaitForPrintedJobs() {
    WaitUntil 60 PrintedJobsAre "$1" && return
    echo "Waited for $1 printed jobs in vain:" >&2
    ls "$PrintServerFolder/printed" >&2
    cat "$PrintServerFolder"/log/* >&2
    return 1
}

# Runs a command until it succeeds, for at most that many seconds.
WaitUntil() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}

PrintServerAnswers() {
    lpstat -p PDF >/dev/null 2>&1
}

PrintServerHasEnded() {
    ! kill -0 "$PrintServerProcess" 2>/dev/null
}

PrintedJobsAre() {
    local jobs=("$PrintServerFolder"/printed/*.pdf)
    [[ -e ${jobs[0]} ]] && ((${#jobs[@]} >= $1))
}

WritePrintServerSettings() {
    cat >"$PrintServerFolder/root/cups-files.conf" <<END &&
ServerRoot $PrintServerFolder/root
ServerBin $PrintServerFolder/bin
RequestRoot $PrintServerFolder/spool
TempDir $PrintServerFolder/spool/tmp
CacheDir $PrintServerFolder/cache
StateDir $PrintServerFolder/state
Printcap $PrintServerFolder/state/printcap
AccessLog $PrintServerFolder/log/access
ErrorLog $PrintServerFolder/log/error
PageLog $PrintServerFolder/log/page
Sandboxing relaxed
END
        cat >"$PrintServerFolder/root/cupsd.conf" <<END
Listen $PrintServerFolder/cups.sock
LogLevel info
MaxLogSize 0
Browsing No
WebInterface No
DefaultAuthType None
ErrorPolicy abort-job
<Location />
  Order deny,allow
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
END
}

WritePrintServerQueue() {
    cat >"$PrintServerFolder/root/printers.conf" <<END &&
<DefaultPrinter PDF>
Info PDF
DeviceURI folder:/printed
State Idle
Accepting Yes
Shared No
ErrorPolicy abort-job
</DefaultPrinter>
<Printer Laser>
Info Laser
DeviceURI folder:/printed
State Idle
Accepting Yes
Shared No
ErrorPolicy abort-job
</Printer>
END
        cat >"$PrintServerFolder/root/ppd/PDF.ppd" <<'END'
*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "PDF.PPD"
*Manufacturer: "Test"
*Product: "(PDF)"
*ModelName: "PDF"
*ShortNickName: "PDF"
*NickName: "PDF"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*Throughput: "1"
*TTRasterizer: Type42
*cupsVersion: 2.4
*cupsManualCopies: True
*cupsFilter: "application/vnd.cups-pdf 0 -"
*OpenUI *PageSize/Paper: PickOne
*DefaultPageSize: Letter
*PageSize Letter/Letter: ""
*PageSize A4/A4: ""
*CloseUI: *PageSize
*OpenUI *PageRegion/Paper: PickOne
*DefaultPageRegion: Letter
*PageRegion Letter/Letter: ""
*PageRegion A4/A4: ""
*CloseUI: *PageRegion
*DefaultImageableArea: Letter
*ImageableArea Letter: "12 12 600 780"
*ImageableArea A4: "12 12 583 830"
*DefaultPaperDimension: Letter
*PaperDimension Letter: "612 792"
*PaperDimension A4: "595 842"
*OpenUI *ColorModel/Color: PickOne
*DefaultColorModel: RGB
*ColorModel RGB/Color: ""
*ColorModel Gray/Grey: ""
*CloseUI: *ColorModel
END
    cp "$PrintServerFolder/root/ppd/PDF.ppd" "$PrintServerFolder/root/ppd/Laser.ppd"
}

WritePrintServerBackEnd() {
    local backEnd=$PrintServerFolder/bin/backend/folder
    # Arguments: job number, user, title, copies, options, and sometimes a file.
    printf '#!/bin/bash\nprinted=%q\n' "$PrintServerFolder/printed" >"$backEnd" &&
        cat >>"$backEnd" <<'END' &&
if (($# == 0)); then
    echo 'direct folder "Unknown" "A folder"'
    exit
fi
echo "$5 printer=$PRINTER" >"$printed/$1.options"
part=$printed/$1.part
cat "${6:--}" >"$part" && mv "$part" "$printed/$1 ${3//\//-}.pdf"
END
        # Closed to others, it runs with the server's rights, and so may write to the folder.
        chmod 700 "$backEnd"
}

LinkPrintServerPrograms() {
    ln -sfn /usr/lib/cups/{daemon,filter,monitor,notifier} "$PrintServerFolder/bin" || return
    # Where the machine confines its print server to the usual places, it does so by the path of
    # the program.
    cp "$(PATH=$PATH:/usr/sbin command -v cupsd)" "$PrintServerFolder/cupsd"
}
