quorin_test(startup_tests
    SOURCES StartupTest.cpp
    LIBS quorin_startup quorin_test_support)
quorin_add_resources(startup_tests)
quorin_copy_assets(startup_tests)
