#pragma once

#include <QString>

/// Keeps a second copy of the program off the same data. The lock is held on the data folder
/// itself, so it leaves no file behind, a copy that died leaves nothing to clean up, and two
/// copies may run on two folders. It is not passed on to programs that this one starts.
class FolderLock {
public:
    /// Takes the lock of the folder if it is free. Fails when the folder can't be opened.
    explicit FolderLock(const QString& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// False when another copy of the program has this folder open.
    bool IsHeld() const { return held; }

private:
    int descriptor = -1;
    bool held = false;
};
