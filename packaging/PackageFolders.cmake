# Run by CPack before it packs: whatever the mask under which somebody makes the package, all may enter its
# folders.
file(CHMOD_RECURSE "${CPACK_TEMPORARY_INSTALL_DIRECTORY}"
    DIRECTORY_PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
