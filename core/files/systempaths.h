#pragma once

#include <QString>

// Every fixed path of the program outside the home directory. When the
// environment variable ORV_ADMIN_ENV_SYSROOT is set and not empty, each path is
// taken under that directory, so tests and packaging can run without /etc.
namespace SystemPaths {

// ORV_ADMIN_ENV_SYSROOT as it was at the first call (or at reloadRoot()).
QString root();
void reloadRoot();
QString underRoot(const QString &path);

QString etcDir();        // "/etc"
QString etcProfile();    // "/etc/profile"
QString bashBashrc();    // "/etc/bash.bashrc"
QString cshCshrc();      // "/etc/csh.cshrc"
QString globalScratch(); // "/tmp/orv-admin-env-globalfile"
QString localScratch();  // "/tmp/orv-admin-env-localfile"

// Further files a login reads, for telling where a variable is set.
QString cshLogin();       // "/etc/csh.login"
QString profileDir();     // "/etc/profile.d"
QString etcEnvironment(); // "/etc/environment"

} // namespace SystemPaths
