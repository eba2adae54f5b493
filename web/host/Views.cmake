# What hosts the library's views: the module is made of it, and a test that draws them natively.
set(views_of_page
  ${CMAKE_CURRENT_LIST_DIR}/Calendars.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Colors.cpp
  ${CMAKE_CURRENT_LIST_DIR}/HostedView.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Posters.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Session.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SkyViews.cpp)
