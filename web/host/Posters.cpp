#include <web/host/Posters.h>

#include <velmora/posters/DarknessPoster.h>
#include <velmora/posters/NightPoster.h>
#include <velmora/posters/YearPoster.h>

namespace velmora::web {
namespace {

PosterPlace posterPlace() {
  const Session& session = Session::shared();
  return {session.place(), session.zone(), session.placeName()};
}

PaperTheme paperTheme() {
  return Session::shared().settings().isLight ? PaperTheme::light : PaperTheme::dark;
}

class HostedPoster : public HostedView {
  void fill(View& screen) override {
    _shown = Session::shared().day();
    const std::shared_ptr<Poster> poster = make(_shown);
    poster->setFrame(screen.bounds());
    screen.addSubview(poster);
  }
  void followDay() override {
    if (!showsSame(_shown, Session::shared().day())) HostedView::followDay();
  }

  virtual std::shared_ptr<Poster> make(Date day) const = 0;
  /// Whether the poster of one day is that of the other.
  virtual bool showsSame(Date one, Date other) const { return one.year() == other.year(); }

  Date _shown;
};

class Night : public HostedPoster {
  std::shared_ptr<Poster> make(Date day) const override {
    return std::make_shared<NightPoster>(posterPlace(), day, paperTheme());
  }
  bool showsSame(Date one, Date other) const override { return one == other; }
};

class Darkness : public HostedPoster {
  std::shared_ptr<Poster> make(Date day) const override {
    return std::make_shared<DarknessPoster>(posterPlace(), day.year(), paperTheme());
  }
};

class YearOfMoons : public HostedPoster {
  std::shared_ptr<Poster> make(Date day) const override {
    const YearPosterStyle style = {
        .theme = paperTheme(),
        .isTilted = options().isTilted,
        .firstWeekday = static_cast<unsigned>(Session::shared().settings().weekStart)};
    return std::make_shared<YearPoster>(posterPlace(), day.year(), style);
  }
};

}  // namespace

std::unique_ptr<HostedView> makeNight() { return std::make_unique<Night>(); }
std::unique_ptr<HostedView> makeDarkness() { return std::make_unique<Darkness>(); }
std::unique_ptr<HostedView> makePoster() { return std::make_unique<YearOfMoons>(); }

}  // namespace velmora::web
