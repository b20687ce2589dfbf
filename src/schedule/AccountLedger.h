#pragma once

#include "platform/Clock.h"
#include "schedule/SlipCaptions.h"
#include "store/BasicDiskRoutines.h"

#include <QDate>
#include <QString>

/// What each account owes, a line for each invoice: NXActiveAccounts/<account>.txt with a copy in
/// Backup/NXActiveAccounts. Kept for the programs that collect the money; nothing here reads it.
/// A missing folder, or an account that can't be a file name, is a failure.
class AccountLedger {
public:
    AccountLedger(BasicDiskRoutines& diskRoutines, const Clock& machineClock);

    /// Charges the grand total of the slip to its account. An amount of more than ten characters
    /// loses its tail.
    void WriteReceivable(const SlipCaptions& slip);
    /// Adds an entry; an account without a file, and without a copy of one, gets one first.
    void PostLedgerEntry(const QString& account, const QString& name, const QString& amountText,
                         const QString& description, QDate date);
    /// Writes record 1, the previous balance of zero.
    void CreateLedger(const QString& account, const QString& name);
    /// Puts a copy of the account's file in the place of the one before.
    void BackupLedger(const QString& account);

private:
    BasicDiskRoutines& disk;
    const Clock& clock;
};
