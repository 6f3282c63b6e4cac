<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>°C</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>°C</translation>
    </message>
    <message>
        <source>°F</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>°F</translation>
    </message>
    <message>
        <source>K</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>K</translation>
    </message>
    <message>
        <source>Bft</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>Bft</translation>
    </message>
    <message>
        <source>kn</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>kn</translation>
    </message>
    <message>
        <source>km/h</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>km/h</translation>
    </message>
    <message>
        <source>m/s</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>m/s</translation>
    </message>
    <message>
        <source>mph</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>mph</translation>
    </message>
    <message>
        <source>hPa</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>hPa</translation>
    </message>
    <message>
        <source>inHg</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>inHg</translation>
    </message>
    <message>
        <source>Torr</source>
        <extracomment>Unit of pressure, short text and spoken text alike. One torr is one millimetre of mercury.</extracomment>
        <translation>Torr</translation>
    </message>
    <message>
        <source>mm</source>
        <extracomment>Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <extracomment>Inches (precipitation). Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>in</translation>
    </message>
    <message>
        <source>m</source>
        <extracomment>Metres (altitude). Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>m</translation>
    </message>
    <message>
        <source>ft</source>
        <extracomment>Feet (altitude). Unit text, short. It is also written directly behind a number: a blank in front of it would be kept.</extracomment>
        <translation>ft</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>grader Celsius</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>grad Celsius</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>grader Fahrenheit</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>grad Fahrenheit</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>kelvin</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>kelvin</translation>
    </message>
    <message>
        <source>Beaufort</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>Beaufort</translation>
    </message>
    <message>
        <source>Beaufort</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>Beaufort</translation>
    </message>
    <message>
        <source>knots</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>knop</translation>
    </message>
    <message>
        <source>knots</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>knop</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>kilometer i timmen</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>kilometer i timmen</translation>
    </message>
    <message>
        <source>metres per second</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>meter per sekund</translation>
    </message>
    <message>
        <source>metres per second</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>meter per sekund</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>engelska mil i timmen</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>engelsk mil i timmen</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>hektopascal</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>hektopascal</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>tum kvicksilver</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>tum kvicksilver</translation>
    </message>
    <message>
        <source>millimetres</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>millimeter</translation>
    </message>
    <message>
        <source>millimetres</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>millimeter</translation>
    </message>
    <message>
        <source>inches</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>tum</translation>
    </message>
    <message>
        <source>inches</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>tum</translation>
    </message>
    <message>
        <source>metres</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>meter</translation>
    </message>
    <message>
        <source>feet</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>fot</translation>
    </message>
    <message>
        <source>N</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>N</translation>
    </message>
    <message>
        <source>NNE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>NNO</translation>
    </message>
    <message>
        <source>NE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>NO</translation>
    </message>
    <message>
        <source>ENE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ONO</translation>
    </message>
    <message>
        <source>E</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>O</translation>
    </message>
    <message>
        <source>ESE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>OSO</translation>
    </message>
    <message>
        <source>SE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>SO</translation>
    </message>
    <message>
        <source>SSE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>SSO</translation>
    </message>
    <message>
        <source>S</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>S</translation>
    </message>
    <message>
        <source>SSW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>SSV</translation>
    </message>
    <message>
        <source>SW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>SV</translation>
    </message>
    <message>
        <source>WSW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>VSV</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>V</translation>
    </message>
    <message>
        <source>WNW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>VNV</translation>
    </message>
    <message>
        <source>NW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>NV</translation>
    </message>
    <message>
        <source>NNW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>NNV</translation>
    </message>
    <message>
        <source>Rot.</source>
        <extracomment>Stands in the place of a wind direction: the wind is variable. Short.</extracomment>
        <translation>var.</translation>
    </message>
    <message>
        <source>-</source>
        <extracomment>Stands in the place of a wind direction: calm or unknown.</extracomment>
        <translation>-</translation>
    </message>
    <message>
        <source>Low</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Lågt</translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Måttligt</translation>
    </message>
    <message>
        <source>High</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Högt</translation>
    </message>
    <message>
        <source>Very high</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Mycket högt</translation>
    </message>
    <message>
        <source>Extreme</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Extremt</translation>
    </message>
    <message>
        <source>h</source>
        <extracomment>Hour unit, written directly behind a number: &quot;12h&quot;.</extracomment>
        <translation>h</translation>
    </message>
    <message>
        <source>Gusts</source>
        <extracomment>Caption of the speed of gusts. Little room.</extracomment>
        <translation>Byvind</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <extracomment>Spoken by screen readers. %d is the direction in degrees, %@ the speed with its unit. Keep this order.</extracomment>
        <translation>Vind: %d grader, %@</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>Vind: %d grad, %@</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The tray icon's menu: ends the program.</extracomment>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Show more...</source>
        <extracomment>Button below the rows.</extracomment>
        <translation>Visa mer...</translation>
    </message>
    <message>
        <source>Show less...</source>
        <extracomment>Button below the rows.</extracomment>
        <translation>Visa mindre...</translation>
    </message>
    <message>
        <source>Demonstration weather</source>
        <extracomment>Below the panel, in the window&apos;s title and in printed reports: the weather is made up. Room for 30 letters.</extracomment>
        <translation>Demonstrationsväder</translation>
    </message>
    <message>
        <source>Wind</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Vind</translation>
    </message>
    <message>
        <source>Precipitation</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Nederbörd</translation>
    </message>
    <message>
        <source>Pressure</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Lufttryck</translation>
    </message>
    <message>
        <source>Please open Zephyrix to activate the widget.</source>
        <extracomment>Shown in place of the weather until a place has been chosen. Zephyrix is the name of the main application.</extracomment>
        <translation>Öppna Zephyrix för att aktivera widgeten.</translation>
    </message>
    <message>
        <source>north</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>nord</translation>
    </message>
    <message>
        <source>north-north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>nordnordost</translation>
    </message>
    <message>
        <source>north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>nordost</translation>
    </message>
    <message>
        <source>east-north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>ostnordost</translation>
    </message>
    <message>
        <source>east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>ost</translation>
    </message>
    <message>
        <source>east-south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>ostsydost</translation>
    </message>
    <message>
        <source>south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>sydost</translation>
    </message>
    <message>
        <source>south-south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>sydsydost</translation>
    </message>
    <message>
        <source>south</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>syd</translation>
    </message>
    <message>
        <source>south-south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>sydsydväst</translation>
    </message>
    <message>
        <source>south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>sydväst</translation>
    </message>
    <message>
        <source>west-south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>västsydväst</translation>
    </message>
    <message>
        <source>west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>väst</translation>
    </message>
    <message>
        <source>west-north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>västnordväst</translation>
    </message>
    <message>
        <source>north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>nordväst</translation>
    </message>
    <message>
        <source>north-north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>nordnordväst</translation>
    </message>
    <message>
        <source>from changing directions</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>från växlande riktningar</translation>
    </message>
    <message>
        <source>wind %1 %2 %3</source>
        <extracomment>Spoken by screen readers. %1 is the direction in words or empty, %2 the speed, %3 its unit.</extracomment>
        <translation>vind %1 %2 %3</translation>
    </message>
    <message>
        <source>no wind</source>
        <extracomment>Spoken by screen readers.</extracomment>
        <translation>ingen vind</translation>
    </message>
    <message>
        <source>precipitation %1 %2</source>
        <extracomment>Spoken by screen readers. %1 is the amount, %2 its unit.</extracomment>
        <translation>nederbörd %1 %2</translation>
    </message>
    <message>
        <source>in the last hour</source>
        <extracomment>Spoken by screen readers. Behind the amount of precipitation.</extracomment>
        <translation>under den senaste timmen</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <extracomment>Spoken by screen readers. Behind the amount of precipitation; %1 is more than one.</extracomment>
        <translation>under de senaste %1 timmarna</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>under den senaste %1 timmen</translation>
    </message>
    <message>
        <source>pressure %1 %2</source>
        <extracomment>Spoken by screen readers. %1 is the air pressure, %2 its unit.</extracomment>
        <translation>lufttryck %1 %2</translation>
    </message>
    <message>
        <source>observed at %1</source>
        <extracomment>Spoken by screen readers. %1 is a clock time.</extracomment>
        <translation>uppmätt klockan %1</translation>
    </message>
    <message>
        <source>forecast for %1</source>
        <extracomment>Spoken by screen readers. %1 is a place.</extracomment>
        <translation>prognos för %1</translation>
    </message>
    <message>
        <source>no weather yet</source>
        <extracomment>Spoken by screen readers, behind a place: nothing was fetched for it so far.</extracomment>
        <translation>inget väder än</translation>
    </message>
    <message>
        <source>high %1</source>
        <extracomment>Spoken by screen readers. Highest temperature of a day; %1 has number and unit.</extracomment>
        <translation>högst %1</translation>
    </message>
    <message>
        <source>low %1</source>
        <extracomment>Spoken by screen readers. Lowest temperature of a day; %1 has number and unit.</extracomment>
        <translation>lägst %1</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <extracomment>Behind the time of an observation that is old; %1 is a number of hours, 2 or more. Little room: hours as a short unit.</extracomment>
        <translation>för %1 h sedan</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>The place whose weather is shown, in front of its name.</extracomment>
        <translation>Plats</translation>
    </message>
    <message>
        <source>Temperature</source>
        <extracomment>In front of the units to choose from.</extracomment>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Search for a place</source>
        <extracomment>In the window of the main application. In the empty field in which a place&apos;s name is typed.</extracomment>
        <translation>Sök efter en plats</translation>
    </message>
    <message>
        <source>Places found</source>
        <extracomment>In the window of the main application. Spoken: the list below the search field.</extracomment>
        <translation>Hittade platser</translation>
    </message>
    <message>
        <source>No place of this name</source>
        <extracomment>In the window of the main application. In the list below the search field.</extracomment>
        <translation>Ingen plats med det namnet</translation>
    </message>
    <message>
        <source>No place is chosen</source>
        <extracomment>In the window of the main application. In place of the chosen place&apos;s name.</extracomment>
        <translation>Ingen plats är vald</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <extracomment>In the window of the main application. Caption in front of latitude and longitude.</extracomment>
        <translation>Koordinater</translation>
    </message>
    <message>
        <source>Local time</source>
        <extracomment>In the window of the main application. Caption in front of the clock time at the place.</extracomment>
        <translation>Lokal tid</translation>
    </message>
    <message>
        <source>Sun</source>
        <extracomment>In the window of the main application. Caption in front of the times of sunrise and sunset.</extracomment>
        <translation>Solen</translation>
    </message>
    <message>
        <source>Moon</source>
        <extracomment>In the window of the main application. Caption in front of the moon&apos;s phase.</extracomment>
        <translation>Månen</translation>
    </message>
    <message>
        <source>rises %1</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;; %1 is a clock time.</extracomment>
        <translation>går upp %1</translation>
    </message>
    <message>
        <source>sets %1</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;; %1 is a clock time.</extracomment>
        <translation>går ner %1</translation>
    </message>
    <message>
        <source>does not set (polar day)</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;.</extracomment>
        <translation>går inte ner (midnattssol)</translation>
    </message>
    <message>
        <source>does not rise (polar night)</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;.</extracomment>
        <translation>går inte upp (polarnatt)</translation>
    </message>
    <message>
        <source>new moon</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>nymåne</translation>
    </message>
    <message>
        <source>waxing crescent</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>växande månskära</translation>
    </message>
    <message>
        <source>first quarter</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>första kvarteret</translation>
    </message>
    <message>
        <source>waxing gibbous</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>växande måne</translation>
    </message>
    <message>
        <source>full moon</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>fullmåne</translation>
    </message>
    <message>
        <source>waning gibbous</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>avtagande måne</translation>
    </message>
    <message>
        <source>last quarter</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>sista kvarteret</translation>
    </message>
    <message>
        <source>waning crescent</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>avtagande månskära</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>In the window of the main application. Heading above the units to choose from.</extracomment>
        <translation>Enheter</translation>
    </message>
    <message>
        <source>Symbols</source>
        <extracomment>In the window of the main application. Heading above the sets of weather symbols.</extracomment>
        <translation>Symboler</translation>
    </message>
    <message>
        <source>Weather</source>
        <extracomment>In the window of the main application. Heading above the state of the weather data.</extracomment>
        <translation>Väder</translation>
    </message>
    <message>
        <source>Colour</source>
        <extracomment>In the window of the main application. A set of weather symbols: in full colour.</extracomment>
        <translation>Färg</translation>
    </message>
    <message>
        <source>Lines</source>
        <extracomment>In the window of the main application. A set of weather symbols: line drawings.</extracomment>
        <translation>Linjer</translation>
    </message>
    <message>
        <source>Usual in %1: %2</source>
        <extracomment>In the window of the main application. A button that chooses these units. %1 is a country, %2 are units. The sentence must bear any country&apos;s name.</extracomment>
        <translation>Vanliga (%1): %2</translation>
    </message>
    <message>
        <source>Usual units: %1</source>
        <extracomment>In the window of the main application. A button that chooses these units.</extracomment>
        <translation>Vanliga enheter: %1</translation>
    </message>
    <message>
        <source>Show the panel at login</source>
        <extracomment>In the window of the main application. A box to tick.</extracomment>
        <translation>Visa panelen vid inloggning</translation>
    </message>
    <message>
        <source>No weather of this place yet: open the panel.</source>
        <extracomment>In the window of the main application. The state of the weather data.</extracomment>
        <translation>Inget väder för platsen ännu: öppna panelen.</translation>
    </message>
    <message>
        <source>Updated %1.</source>
        <extracomment>In the window of the main application. The state of the weather data; %1 is &quot;just now&quot;, &quot;5 min ago&quot; or the like.</extracomment>
        <translation>Uppdaterat %1.</translation>
    </message>
    <message>
        <source>just now</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;</extracomment>
        <translation>just nu</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;; a number of minutes, 2 or more.</extracomment>
        <translation>för %1 min sedan</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;; a number of days, 2 or more.</extracomment>
        <translation>för %1 dagar sedan</translation>
    </message>
    <message>
        <source>The panel was closed since, or the feed could not be reached.</source>
        <extracomment>In the window of the main application. Behind &quot;Updated 3 h ago.&quot;: why the data is old.</extracomment>
        <translation>Sedan dess var panelen stängd eller tjänsten onåbar.</translation>
    </message>
    <message>
        <source>Places: %1</source>
        <extracomment>In the window of the main application. Who made the list of places; %1 is a name and a licence.</extracomment>
        <translation>Platser: %1</translation>
    </message>
</context>
</TS>
