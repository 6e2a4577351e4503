#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

// What a host needs to know of the manager: where it is, and what it is to be told.

/// The path of the manager's executable; empty when it is nowhere to be found. The environment variable ORVEL_MANAGER
/// names it, or it lies beside this host's own executable, or on the search path.
QString managerPath();

/// The manager's shortcut for a language; "en" for those that it does not speak.
QString managerLanguage(const QLocale &locale);

/// Writes the file with the parameters that new tasks start with. Returns its path; empty when it cannot be written.
QString writeParameterFile();

/// The arguments. Without a parameter file, tasks start with the daemon's defaults.
QStringList managerArguments(const QString &language, const QString &parameterFile);
