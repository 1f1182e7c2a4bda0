# Installs the build tree BUILD_DIR into a fresh PREFIX and checks that the
# program, its desktop entry and its AppStream metadata land where desktops
# look for them. Run with cmake -DBUILD_DIR=... -DPREFIX=... [-DCONFIG=...] -P.
foreach(variable BUILD_DIR PREFIX)
    if(NOT ${variable})
        message(FATAL_ERROR "${variable} is not set")
    endif()
endforeach()

file(REMOVE_RECURSE "${PREFIX}")
set(config_args)
if(CONFIG)
    set(config_args --config "${CONFIG}")
endif()
execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${PREFIX}" ${config_args}
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "cmake --install failed: ${result}")
endif()

set(missing)
foreach(path
        bin/orv-admin-env
        bin/orv-admin-env-backups
        bin/orv-admin-env-cli
        share/applications/org.orv.admin_env.desktop
        share/metainfo/org.orv.admin_env.metainfo.xml)
    if(NOT EXISTS "${PREFIX}/${path}" OR IS_DIRECTORY "${PREFIX}/${path}")
        list(APPEND missing "${path}")
    endif()
endforeach()
if(missing)
    message(FATAL_ERROR "not installed under ${PREFIX}: ${missing}")
endif()

# The desktop entry starts the installed program by name.
file(STRINGS "${PREFIX}/share/applications/org.orv.admin_env.desktop" exec REGEX "^Exec=")
if(NOT exec STREQUAL "Exec=orv-admin-env")
    message(FATAL_ERROR "unexpected ${exec}")
endif()
message(STATUS "installed layout under ${PREFIX} is complete")
