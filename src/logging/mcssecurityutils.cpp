#include "mcssecurityutils.h"

#include "mcslogger.h"

#include <QFileInfo>

namespace Scheduler {

using namespace Qt::StringLiterals;

namespace {

const QString logSource = u"MCsSecurityUtils"_s;

} // namespace

bool MCsSecurityUtils::setFilePermissions(const QString &path)
{
    if (!hardeningEnabled)
        return true;
    return restrictFileAccess(path);
}

bool MCsSecurityUtils::restrictFileAccess(const QString &path)
{
    MCsLogger &logger = MCsLogger::instance();
    if (!QFileInfo::exists(path)) {
        logger.warn(logSource, u"File does not exist: %1"_s.arg(path));
        return false;
    }
    const FileAccessResult result = applyFileAccess(path);
    if (result.failure != FileAccessFailure::None) {
        logger.error(logSource, failureText(result));
        return false;
    }
    logger.debug(logSource, u"Set file permissions to 0640 (owner rw, group r): %1"_s.arg(path));
    return true;
}

QString MCsSecurityUtils::failureText(const FileAccessResult &result)
{
    switch (result.failure) {
    case FileAccessFailure::ProcessToken:
        return u"Failed to open process token: %1"_s.arg(result.code);
    case FileAccessFailure::TokenInformation:
        return u"Failed to get token information: %1"_s.arg(result.code);
    case FileAccessFailure::AdminSid:
        return u"Failed to create admin SID: %1"_s.arg(result.code);
    case FileAccessFailure::Acl:
        return u"Failed to create ACL: %1"_s.arg(result.code);
    case FileAccessFailure::FileSecurity:
        return u"Failed to set file security: %1"_s.arg(result.code);
    case FileAccessFailure::None:
        break;
    }
    return {};
}

} // namespace Scheduler
