#!/usr/bin/python3
"""Writes the reference tables of tests/data/astro and tests/data/calendar.

Needs Debian's python3-ephem, a separate implementation of the astronomy; the calendar tables come
from Python's zoneinfo. The tables are committed, so the tests need neither. To add cases, extend
the lists below, run this file and look at the difference.
"""
import datetime
import pathlib
import platform
import zoneinfo

import ephem

HERE = pathlib.Path(__file__).parent
UTC = datetime.timezone.utc
EPHEM = f"python3-ephem {ephem.__version__}"
TZDATA = open("/usr/share/zoneinfo/tzdata.zi", encoding="utf-8").readline().split()[-1]
ZONEINFO = f"zoneinfo of Python {platform.python_version()}, tzdata {TZDATA}"

# Name, latitude, longitude (degrees), zone.
PLACES = [
    ("Berlin", 52.53, 13.38, "Europe/Berlin"),
    ("London", 51.48, 0.0, "Europe/London"),
    ("Reykjavik", 64.15, -21.94, "Atlantic/Reykjavik"),
    ("Anchorage", 61.22, -149.9, "America/Anchorage"),
    ("New York", 40.71, -74.01, "America/New_York"),
    ("St. John's", 47.56, -52.71, "America/St_Johns"),
    ("Quito", -0.18, -78.47, "America/Guayaquil"),
    ("Nairobi", -1.29, 36.82, "Africa/Nairobi"),
    ("Cape Town", -33.92, 18.42, "Africa/Johannesburg"),
    ("Ushuaia", -54.8, -68.3, "America/Argentina/Ushuaia"),
    ("Kolkata", 22.57, 88.36, "Asia/Kolkata"),
    ("Kathmandu", 27.72, 85.32, "Asia/Kathmandu"),
    ("Tokyo", 35.68, 139.69, "Asia/Tokyo"),
    ("Sydney", -33.87, 151.21, "Australia/Sydney"),
    ("Lord Howe", -31.55, 159.08, "Australia/Lord_Howe"),
    ("Auckland", -36.85, 174.76, "Pacific/Auckland"),
    ("Apia", -13.83, -171.76, "Pacific/Apia"),
    ("Kiritimati", 1.87, -157.4, "Pacific/Kiritimati"),
]
# The height of the sun's centre (degrees) at an event.
HEIGHTS = [("official", "-0:50"), ("civil", "-6"), ("nautical", "-12"), ("astronomical", "-18")]
POLAR_PLACES = [
    ("Tromso", 69.65, 18.96, "Europe/Oslo"),
    ("Longyearbyen", 78.22, 15.63, "Arctic/Longyearbyen"),
    ("Utqiagvik", 71.29, -156.79, "America/Anchorage"),
    ("McMurdo", -77.85, 166.67, "Antarctica/McMurdo"),
    ("Troll", -72.01, 2.53, "Antarctica/Troll"),
]
# Published instants (UT) of new and full moons that were eclipses; the table must agree with them.
KNOWN_MOONS = {"1999-08-11 11:08": "new", "2017-08-21 18:30": "new", "2018-07-27 20:20": "full",
               "2019-01-21 05:16": "full"}
ZONES = ["Europe/Berlin", "America/New_York", "Australia/Lord_Howe", "Asia/Kolkata",
         "Asia/Kathmandu", "Pacific/Apia", "Africa/Casablanca", "Antarctica/Troll",
         "Pacific/Kiritimati", "America/St_Johns", "Africa/Cairo", "America/Havana",
         "Europe/Dublin", "America/Sao_Paulo", "Asia/Pyongyang", "America/Caracas"]


def table(path, source, columns, rows):
    with open(HERE / path, "w", encoding="utf-8") as out:
        out.write(f"# {source}\n# Made by tests/data/make_sky_tables.py, which also tells how to add more.\n")
        out.write("# " + "\t".join(columns) + "\n")
        for row in rows:
            out.write("\t".join(str(field) for field in row) + "\n")


def seconds(moment):
    return round((moment.replace(tzinfo=UTC) if moment.tzinfo is None else moment).timestamp())


def observer(latitude, longitude, height="-0:50"):
    here = ephem.Observer()
    here.lat, here.lon = str(latitude), str(longitude)
    here.pressure, here.horizon, here.elevation = 0, height, 0
    return here


def sun_events(place, day, height):
    """Rise and set within the local day (seconds since 1970), or why there is none."""
    _, latitude, longitude, zone = place
    start = datetime.datetime.combine(day, datetime.time(), zoneinfo.ZoneInfo(zone)).astimezone(UTC)
    end = datetime.datetime.combine(day + datetime.timedelta(1), datetime.time(),
                                    zoneinfo.ZoneInfo(zone)).astimezone(UTC)
    here = observer(latitude, longitude, height)
    events = []
    for search in (here.next_rising, here.next_setting):
        here.date = start.replace(tzinfo=None)
        try:
            event = search(ephem.Sun(), use_center=True).datetime().replace(tzinfo=UTC)
            events.append(round(event.timestamp()) if event < end else "-")
        except ephem.AlwaysUpError:
            events.append("sun")
        except ephem.NeverUpError:
            events.append("nosun")
    return events


def sun_times():
    for place in PLACES:
        for week in range(53):
            day = datetime.date(2023, 1, 1) + datetime.timedelta(7 * week)
            for name, height in HEIGHTS[:1] if week % 8 else HEIGHTS:
                yield [*place, day, name, *sun_events(place, day, height)]


def polar_seasons():
    for place in POLAR_PLACES:
        last = None
        for number in range(366):
            day = datetime.date(2024, 1, 1) + datetime.timedelta(number)
            here = observer(place[1], place[2])
            noon = datetime.datetime.combine(day, datetime.time(12)) - datetime.timedelta(
                hours=place[2] / 15)
            here.date = noon
            heights = []
            for at in (noon, noon + datetime.timedelta(hours=12)):
                here.date = at
                sun = ephem.Sun(here)
                heights.append(float(sun.alt) * 57.29577951308232)
            season = "sun" if min(heights) > -5 / 6 else "nosun" if max(heights) < -5 / 6 else "times"
            if season != last:
                yield [*place, day, season]
            last = season


def moon_phases():
    searches = {"new": ephem.next_new_moon, "first": ephem.next_first_quarter_moon,
                "full": ephem.next_full_moon, "last": ephem.next_last_quarter_moon}
    found = {}
    for first, last in (("1990/1/1", "1990/4/1"), ("1999/7/1", "1999/9/1"), ("2017/1/1", "2019/3/1"),
                        ("2040/1/1", "2040/4/1")):
        for kind, search in searches.items():
            date = search(first)
            while date < ephem.Date(last):
                found[date.datetime()] = kind
                date = search(date)
    for known, kind in KNOWN_MOONS.items():
        moment = datetime.datetime.strptime(known, "%Y-%m-%d %H:%M")
        nearest = min(found, key=lambda date: abs(date - moment))
        assert found[nearest] == kind and abs(nearest - moment) < datetime.timedelta(minutes=1), known
    for moment in sorted(found):
        yield [seconds(moment), moment.strftime("%Y-%m-%d %H:%M"), found[moment]]


def positions():
    for number in range(48):
        moment = datetime.datetime(1995, 1, 1) + datetime.timedelta(days=311.37 * number)
        place = PLACES[number % len(PLACES)]
        here = observer(place[1], place[2])
        here.date = moment
        centre = ephem.Date(moment)
        sun, moon = ephem.Sun(), ephem.Moon()
        sun.compute(centre, epoch=centre)
        moon.compute(centre, epoch=centre)
        geocentric = [f"{float(angle) * 57.29577951308232:.4f}" for angle in
                      (sun.g_ra, sun.g_dec, moon.g_ra, moon.g_dec)]
        kilometres = moon.earth_distance * 149597870.7
        moon.compute(here)
        horizontal = [f"{float(angle) * 57.29577951308232:.4f}" for angle in (moon.az, moon.alt)]
        yield [seconds(moment), place[1], place[2], *geocentric, f"{kilometres:.0f}",
               f"{moon.moon_phase:.4f}", *horizontal]


def changes(zone, first, last):
    """Each change of the zone's offset: the instant, the offset before and after (seconds)."""
    at = lambda instant: int(datetime.datetime.fromtimestamp(instant, zone).utcoffset().total_seconds())
    instant, offset = first, at(first)
    while instant < last:
        later = instant + 5 * 86400
        if at(later) != offset:
            while later - instant > 1:
                middle = (instant + later) // 2
                instant, later = (middle, later) if at(middle) == offset else (instant, middle)
            yield later, offset, at(later)
            offset = at(later)
        instant = later


def wall_times():
    spans = [(2011, 2012), (2015, 2016), (2018, 2019), (2024, 2025)]
    for name in ZONES:
        zone = zoneinfo.ZoneInfo(name)
        for first, last in spans:
            span = (int(datetime.datetime(year, 1, 1, tzinfo=UTC).timestamp()) for year in (first, last))
            for instant, before, after in changes(zone, *span):
                size = abs(after - before)
                for step in (-1, 0, size // 2, size - 1, size):
                    wall = datetime.datetime(1970, 1, 1) + datetime.timedelta(
                        seconds=instant + min(before, after) + step)
                    meant = seconds(wall.replace(tzinfo=zone))
                    shown = datetime.datetime.fromtimestamp(meant, zone)
                    yield [name, wall.strftime("%Y-%m-%d %H:%M:%S"), meant,
                           shown.strftime("%Y-%m-%d %H:%M:%S"), int(shown.utcoffset().total_seconds())]


def day_ranges():
    days = [(2011, 12, 29), (2011, 12, 30), (2015, 8, 14), (2018, 11, 3), (2023, 4, 27), (2024, 3, 9), (2024, 3, 10),
            (2024, 3, 30), (2024, 3, 31), (2024, 4, 6), (2024, 4, 7), (2024, 10, 27), (2024, 11, 3),
            (2024, 12, 31), (2024, 2, 28)]
    for name in ZONES:
        zone = zoneinfo.ZoneInfo(name)
        for number, day in enumerate(days):
            now = seconds(datetime.datetime(*day, 15, 20, 7, tzinfo=zone))
            today = datetime.datetime.fromtimestamp(now, zone).date()
            first, last = [(0, 1), (1, 2), (-1, 1), (31, 32)][number % 4]
            ends = [seconds(datetime.datetime.combine(today + datetime.timedelta(offset),
                                                      datetime.time(), zone))
                    for offset in (first, last)]
            yield [name, now, first, last, *ends]


table("astro/sun-times.tsv",
      f"Sunrise, sunset and twilight (seconds since 1970) by {EPHEM}, centre of the sun at the height, without air",
      ["place", "latitude", "longitude", "zone", "day", "height", "rise", "set"], sun_times())
table("astro/polar-seasons.tsv",
      f"First days of 2024 on which the sun rises and sets (times), stays up (sun) or down (nosun), by {EPHEM}",
      ["place", "latitude", "longitude", "zone", "first day", "season"], polar_seasons())
table("astro/moon-phases.tsv",
      f"Phases of the moon (UT) by {EPHEM}; checked against the published instants of four eclipses",
      ["seconds since 1970", "date", "phase"], moon_phases())
table("astro/positions.tsv",
      f"Apparent places by {EPHEM}: degrees and kilometres; ra and dec geocentric, az and alt seen from the place without air",
      ["seconds since 1970", "latitude", "longitude", "sun ra", "sun dec", "moon ra", "moon dec",
       "moon distance", "illuminated", "moon az", "moon alt"], positions())
table("calendar/wall-times.tsv",
      f"Around each change of a zone's offset, by {ZONEINFO}: what a wall time means, and what the wall shows then",
      ["zone", "wall time", "seconds since 1970", "shown", "offset"], wall_times())
table("calendar/day-ranges.tsv",
      f"From the start of one day to that of another, counted from today, by {ZONEINFO}",
      ["zone", "now", "from", "to", "start", "end"], day_ranges())
