#include "platform/FolderLock.h"

#include "platform/RuntimeFailure.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

FolderLock::FolderLock(const QString& folder) {
    const QString operation = u"Opening the data folder "_s + folder;
    descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        throw FailureFromErrno(errno, operation);
    held = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    if (!held && errno != EWOULDBLOCK) {
        const int error = errno;
        ::close(descriptor);
        throw FailureFromErrno(error, operation);
    }
}

FolderLock::~FolderLock() {
    ::close(descriptor);
}
