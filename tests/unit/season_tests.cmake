set(season_tests
  match_machine_test.cpp match_unwatched_test.cpp match_watched_test.cpp match_periods_test.cpp
  match_single_game_test.cpp match_results_test.cpp match_play_game_test.cpp match_statistics_test.cpp
  season_schedule_test.cpp season_league_lists_test.cpp season_week_loop_test.cpp
  season_sim_run_test.cpp
  development_training_test.cpp development_promotion_test.cpp
  draft_run_test.cpp draft_pool_test.cpp draft_picks_test.cpp draft_year_test.cpp
  draft_new_season_test.cpp draft_wait_test.cpp)
