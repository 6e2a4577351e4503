# The Debian packages that CPack makes: one for each component.

set(ORVEL_DEBIAN_RELEASE "1" CACHE STRING "Release of the Debian packages, counted from 1 for each version")
set(ORVEL_DEBIAN_MAINTAINER "Tamrix Laboratory <orvel@tamrix.example>" CACHE STRING "Maintainer of the Debian packages")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvel-task-scheduler)
set(CPACK_PACKAGE_VENDOR "Tamrix Laboratory")
set(CPACK_PACKAGE_CONTACT "${ORVEL_DEBIAN_MAINTAINER}")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL manager devdaemon)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE "${ORVEL_DEBIAN_RELEASE}")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

set(CPACK_DEBIAN_MANAGER_PACKAGE_NAME orvel-scheduler-manager)
set(CPACK_COMPONENT_MANAGER_DESCRIPTION "desktop manager of a background task scheduler
Shows the scheduled tasks of a host program, such as a screen recorder, and
lets the user create, edit, trigger, group and delete them. The host program
starts it for its own type of tasks.
.
The manager runs no task itself. It needs the daemon of the scheduler, which
it finds in the user's session, or starts as the user service
SchedulerService. The package orvel-dev-daemon holds a stand-in for it.")
# The images are PNGs that the program carries itself, so the SVG plugin of Qt is not needed. The fonts are for the
# Chinese and Japanese texts, and for the emoji in some headings.
set(CPACK_DEBIAN_MANAGER_PACKAGE_RECOMMENDS
  "fonts-noto-cjk, fonts-noto-color-emoji, hicolor-icon-theme, qt6-wayland")
set(CPACK_DEBIAN_MANAGER_PACKAGE_SUGGESTS "orvel-dev-daemon")

set(CPACK_DEBIAN_DEVDAEMON_PACKAGE_NAME orvel-dev-daemon)
set(CPACK_COMPONENT_DEVDAEMON_DESCRIPTION "stand-in for the daemon of the Orvel Task Scheduler
Keeps tasks and groups and answers the manager as the real daemon does, so that
the manager can be run, shown and tested where the real one is not installed.
It simulates the runs of the tasks, and starts no program.
.
It brings the user service SchedulerService, which the manager starts when no
daemon answers, and orvel-protocol-check, which tells the author of a daemon
where it breaks the protocol.")
set(CPACK_DEBIAN_DEVDAEMON_PACKAGE_RECOMMENDS "systemd")
set(CPACK_DEBIAN_DEVDAEMON_PACKAGE_SUGGESTS "orvel-scheduler-manager")

# What a Debian package has beside the installed files is added when they lie in CPack's own tree, so that
# "cmake --install" stays free of it.
set(debian_version "${PROJECT_VERSION}-${ORVEL_DEBIAN_RELEASE}")
configure_file(debian/finish.cmake.in "${CMAKE_CURRENT_BINARY_DIR}/finish.cmake" @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_BINARY_DIR}/finish.cmake")

include(CPack)
