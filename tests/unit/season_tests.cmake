set(season_tests
  match_machine_test.cpp match_unwatched_test.cpp match_watched_test.cpp)
