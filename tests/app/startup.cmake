quorin_test(startup_tests
    SOURCES StartupTest.cpp ${PROJECT_SOURCE_DIR}/tests/ui/dialogs/DialogTestHelpers.cpp
    LIBS quorin_startup quorin_test_support)
quorin_add_resources(startup_tests)
quorin_copy_assets(startup_tests)
