# The files a desktop installation needs besides the program, and the Debian package
# ("cpack -G DEB" in the build folder). Included from the top-level CMakeLists.txt.

set(ORV_ADMIN_ENV_PACKAGING_DIR ${CMAKE_CURRENT_LIST_DIR})
set(ORV_ADMIN_ENV_APP_ICON_DIR ${CMAKE_CURRENT_SOURCE_DIR}/resources/icons/app)

# The application icon in hicolor: the SVG and the PNG sizes rendered from it
# (tools/render-icon.sh).
set(ORV_ADMIN_ENV_ICON_SIZES 16 22 24 32 48 64 128 256)
install(FILES ${ORV_ADMIN_ENV_APP_ICON_DIR}/org.orv.admin_env.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size IN LISTS ORV_ADMIN_ENV_ICON_SIZES)
    install(FILES ${ORV_ADMIN_ENV_APP_ICON_DIR}/org.orv.admin_env-${size}.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps
        RENAME org.orv.admin_env.png)
endforeach()

# Manual pages: every docs/*.1, so that a program's page is installed as soon as
# it lands there. Compressed without a time stamp, as Debian wants them.
find_program(ORV_ADMIN_ENV_GZIP gzip)
if(NOT ORV_ADMIN_ENV_GZIP)
    message(FATAL_ERROR "gzip not found: it compresses the manual pages and the change log")
endif()
file(GLOB ORV_ADMIN_ENV_MAN_PAGES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/docs/*.1)
set(compressed_files)
set(gz_dir ${CMAKE_CURRENT_BINARY_DIR}/packaging)
# orv_admin_env_gzip(SOURCE NAME): ${gz_dir}/NAME.gz made from SOURCE.
function(orv_admin_env_gzip source name)
    add_custom_command(OUTPUT ${gz_dir}/${name}.gz
        COMMAND ${CMAKE_COMMAND} -E copy ${source} ${gz_dir}/${name}
        COMMAND ${ORV_ADMIN_ENV_GZIP} -9nf ${gz_dir}/${name}
        DEPENDS ${source}
        COMMENT "Compressing ${name}"
        VERBATIM)
endfunction()
foreach(page IN LISTS ORV_ADMIN_ENV_MAN_PAGES)
    get_filename_component(page_name ${page} NAME)
    orv_admin_env_gzip(${page} ${page_name})
    list(APPEND compressed_files ${gz_dir}/${page_name}.gz)
    install(FILES ${gz_dir}/${page_name}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()

# Copyright and change log where Debian looks for them.
orv_admin_env_gzip(${ORV_ADMIN_ENV_PACKAGING_DIR}/changelog changelog)
list(APPEND compressed_files ${gz_dir}/changelog.gz)
install(FILES ${ORV_ADMIN_ENV_PACKAGING_DIR}/copyright ${gz_dir}/changelog.gz
    DESTINATION ${CMAKE_INSTALL_DOCDIR})
add_custom_target(orv-admin-env-compressed-docs ALL DEPENDS ${compressed_files})

# The Debian package. A parent project that includes us packages for itself.
if(ORV_ADMIN_ENV_TOP_LEVEL)
    set(CPACK_GENERATOR DEB)
    set(CPACK_PACKAGE_NAME orv-admin-env)
    set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
    set(CPACK_PACKAGE_VENDOR Orv)
    set(CPACK_PACKAGE_CONTACT "Orv developers <admin-env@orv.example.org>")
    set(CPACK_PACKAGE_HOMEPAGE_URL https://orv.example.org/admin-env)
    set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "environment variables editor of the Orv desktop")
    set(CPACK_PACKAGE_DESCRIPTION
        "A single-window Qt program that shows the variables of the session in a
table with their values, the start-up file that exports each of them and
what the well-known ones mean. It adds, edits, deletes and resets the
variables that the shell start-up files define, writing them back as
export lines that take effect at the next login.")
    set(CPACK_DEBIAN_PACKAGE_SECTION utils)
    set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
    # The Qt libraries come from dpkg-shlibdeps; Qt loads the SVG icon engine as a
    # plugin, which no linker sees. Breeze has every icon name the editor asks for.
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt5svg5)
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS breeze-icon-theme)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_STRIP_FILES ON)
    set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    include(CPack)
endif()
