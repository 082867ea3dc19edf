set(shell_tests
  records_list_test.cpp)
