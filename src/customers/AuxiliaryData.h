#pragma once

#include "store/BasicDiskRoutines.h"

#include <QString>

#include <array>

/// Six free texts beside a customer's record, under headings that hold for all accounts. The texts
/// lie in small files below AuxFiles, in a folder named by the account number: accounts of the same
/// number share one, and a deleted account's texts stay for the next that gets its number.
///
/// The lines of a text are parted by a line feed here, and by CR LF in the files.
class AuxiliaryData {
public:
    explicit AuxiliaryData(BasicDiskRoutines& diskRoutines);

    static constexpr int boxes = 6;
    std::array<QString, boxes> txtHeading;
    std::array<QString, boxes> txtAux;
    /// "RETAIN Aux Data between Accounts".
    bool ckSaveAux = false;

    /// Brings a new screen's texts to what it starts with.
    void Load();
    /// AuxHeadings.txt, six plain lines; fewer are a failure of kind ReadPastEnd.
    void LoadAuxHeadings();
    void SaveAuxHeadings();

    /// The texts of an account; nothing happens while ckSaveAux is ticked. They come by fields: a
    /// comma in a text comes back as a line break, quotes are lost, and each field is followed by a
    /// line break, also the last one.
    void LoadAuxData(const QString& accountNumber);
    /// Writes all six files, of empty texts as well. An account number that names no folder of its
    /// own, such as "..", is a failure of kind BadFileName, and nothing is written.
    void SaveAuxData(const QString& accountNumber);

private:
    void MakeFolders(const QString& accountFolder);

    BasicDiskRoutines& disk;
};
