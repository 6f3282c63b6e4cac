<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
        <translation>degrees Celsius</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>degree Celsius</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>degrees Fahrenheit</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>degree Fahrenheit</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>Kelvin</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>Kelvin</translation>
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
        <translation>knots</translation>
    </message>
    <message>
        <source>knots</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>knot</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>kilometres per hour</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>kilometre per hour</translation>
    </message>
    <message>
        <source>metres per second</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>metres per second</translation>
    </message>
    <message>
        <source>metres per second</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>metre per second</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>miles per hour</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>mile per hour</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>hectopascals</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>hectopascal</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>inches of mercury</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>inch of mercury</translation>
    </message>
    <message>
        <source>millimetres</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>millimetres</translation>
    </message>
    <message>
        <source>millimetres</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>millimetre</translation>
    </message>
    <message>
        <source>inches</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>inches</translation>
    </message>
    <message>
        <source>inches</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>inch</translation>
    </message>
    <message>
        <source>metres</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>metres</translation>
    </message>
    <message>
        <source>feet</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>feet</translation>
    </message>
    <message>
        <source>N</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>N</translation>
    </message>
    <message>
        <source>NNE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>NNE</translation>
    </message>
    <message>
        <source>NE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>NE</translation>
    </message>
    <message>
        <source>ENE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ENE</translation>
    </message>
    <message>
        <source>E</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>E</translation>
    </message>
    <message>
        <source>ESE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ESE</translation>
    </message>
    <message>
        <source>SE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>SE</translation>
    </message>
    <message>
        <source>SSE</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>SSE</translation>
    </message>
    <message>
        <source>S</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>S</translation>
    </message>
    <message>
        <source>SSW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>SSW</translation>
    </message>
    <message>
        <source>SW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>SW</translation>
    </message>
    <message>
        <source>WSW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>WSW</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>W</translation>
    </message>
    <message>
        <source>WNW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>WNW</translation>
    </message>
    <message>
        <source>NW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>NW</translation>
    </message>
    <message>
        <source>NNW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>NNW</translation>
    </message>
    <message>
        <source>Rot.</source>
        <extracomment>Stands in the place of a wind direction: the wind is variable. Short.</extracomment>
        <translation>Rot.</translation>
    </message>
    <message>
        <source>-</source>
        <extracomment>Stands in the place of a wind direction: calm or unknown.</extracomment>
        <translation>-</translation>
    </message>
    <message>
        <source>Low</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Low</translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Medium</translation>
    </message>
    <message>
        <source>High</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>High</translation>
    </message>
    <message>
        <source>Very high</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Very high</translation>
    </message>
    <message>
        <source>Extreme</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Extreme</translation>
    </message>
    <message>
        <source>h</source>
        <extracomment>Hour unit, written directly behind a number: &quot;12h&quot;.</extracomment>
        <translation>h</translation>
    </message>
    <message>
        <source>Gusts</source>
        <extracomment>Caption of the speed of gusts. Little room.</extracomment>
        <translation>Gusts</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <extracomment>Spoken by screen readers. %d is the direction in degrees, %@ the speed with its unit. Keep this order.</extracomment>
        <translation>Wind:%d degrees %@</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>Wind:%d degree %@</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The tray icon's menu: ends the program.</extracomment>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Show more...</source>
        <extracomment>Button below the rows.</extracomment>
        <translation>Show more...</translation>
    </message>
    <message>
        <source>Show less...</source>
        <extracomment>Button below the rows.</extracomment>
        <translation>Show less...</translation>
    </message>
    <message>
        <source>Demonstration weather</source>
        <extracomment>Below the panel, in the window&apos;s title and in printed reports: the weather is made up. Room for 30 letters.</extracomment>
        <translation>Demonstration weather</translation>
    </message>
    <message>
        <source>Wind</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Precipitation</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Precipitation</translation>
    </message>
    <message>
        <source>Pressure</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Pressure</translation>
    </message>
    <message>
        <source>Please open Zephyrix to activate the widget.</source>
        <extracomment>Shown in place of the weather until a place has been chosen. Zephyrix is the name of the main application.</extracomment>
        <translation>Please open Zephyrix to activate the widget.</translation>
    </message>
    <message>
        <source>north</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>north</translation>
    </message>
    <message>
        <source>north-north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>north-north-east</translation>
    </message>
    <message>
        <source>north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>north-east</translation>
    </message>
    <message>
        <source>east-north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>east-north-east</translation>
    </message>
    <message>
        <source>east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>east</translation>
    </message>
    <message>
        <source>east-south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>east-south-east</translation>
    </message>
    <message>
        <source>south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>south-east</translation>
    </message>
    <message>
        <source>south-south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>south-south-east</translation>
    </message>
    <message>
        <source>south</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>south</translation>
    </message>
    <message>
        <source>south-south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>south-south-west</translation>
    </message>
    <message>
        <source>south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>south-west</translation>
    </message>
    <message>
        <source>west-south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>west-south-west</translation>
    </message>
    <message>
        <source>west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>west</translation>
    </message>
    <message>
        <source>west-north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>west-north-west</translation>
    </message>
    <message>
        <source>north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>north-west</translation>
    </message>
    <message>
        <source>north-north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>north-north-west</translation>
    </message>
    <message>
        <source>from changing directions</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>from changing directions</translation>
    </message>
    <message>
        <source>wind %1 %2 %3</source>
        <extracomment>Spoken by screen readers. %1 is the direction in words or empty, %2 the speed, %3 its unit.</extracomment>
        <translation>wind %1 %2 %3</translation>
    </message>
    <message>
        <source>no wind</source>
        <extracomment>Spoken by screen readers.</extracomment>
        <translation>no wind</translation>
    </message>
    <message>
        <source>precipitation %1 %2</source>
        <extracomment>Spoken by screen readers. %1 is the amount, %2 its unit.</extracomment>
        <translation>precipitation %1 %2</translation>
    </message>
    <message>
        <source>in the last hour</source>
        <extracomment>Spoken by screen readers. Behind the amount of precipitation.</extracomment>
        <translation>in the last hour</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <extracomment>Spoken by screen readers. Behind the amount of precipitation; %1 is more than one.</extracomment>
        <translation>in the last %1 hours</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>in the last %1 hour</translation>
    </message>
    <message>
        <source>pressure %1 %2</source>
        <extracomment>Spoken by screen readers. %1 is the air pressure, %2 its unit.</extracomment>
        <translation>pressure %1 %2</translation>
    </message>
    <message>
        <source>observed at %1</source>
        <extracomment>Spoken by screen readers. %1 is a clock time.</extracomment>
        <translation>observed at %1</translation>
    </message>
    <message>
        <source>forecast for %1</source>
        <extracomment>Spoken by screen readers. %1 is a place.</extracomment>
        <translation>forecast for %1</translation>
    </message>
    <message>
        <source>no weather yet</source>
        <extracomment>Spoken by screen readers, behind a place: nothing was fetched for it so far.</extracomment>
        <translation>no weather yet</translation>
    </message>
    <message>
        <source>high %1</source>
        <extracomment>Spoken by screen readers. Highest temperature of a day; %1 has number and unit.</extracomment>
        <translation>high %1</translation>
    </message>
    <message>
        <source>low %1</source>
        <extracomment>Spoken by screen readers. Lowest temperature of a day; %1 has number and unit.</extracomment>
        <translation>low %1</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <extracomment>Behind the time of an observation that is old; %1 is a number of hours, 2 or more. Little room: hours as a short unit.</extracomment>
        <translation>%1 h ago</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>The place whose weather is shown, in front of its name.</extracomment>
        <translation>Place</translation>
    </message>
    <message>
        <source>Temperature</source>
        <extracomment>In front of the units to choose from.</extracomment>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>Search for a place</source>
        <extracomment>In the window of the main application. In the empty field in which a place&apos;s name is typed.</extracomment>
        <translation>Search for a place</translation>
    </message>
    <message>
        <source>Places found</source>
        <extracomment>In the window of the main application. Spoken: the list below the search field.</extracomment>
        <translation>Places found</translation>
    </message>
    <message>
        <source>No place of this name</source>
        <extracomment>In the window of the main application. In the list below the search field.</extracomment>
        <translation>No place of this name</translation>
    </message>
    <message>
        <source>No place is chosen</source>
        <extracomment>In the window of the main application. In place of the chosen place&apos;s name.</extracomment>
        <translation>No place is chosen</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <extracomment>In the window of the main application. Caption in front of latitude and longitude.</extracomment>
        <translation>Coordinates</translation>
    </message>
    <message>
        <source>Local time</source>
        <extracomment>In the window of the main application. Caption in front of the clock time at the place.</extracomment>
        <translation>Local time</translation>
    </message>
    <message>
        <source>Sun</source>
        <extracomment>In the window of the main application. Caption in front of the times of sunrise and sunset.</extracomment>
        <translation>Sun</translation>
    </message>
    <message>
        <source>Moon</source>
        <extracomment>In the window of the main application. Caption in front of the moon&apos;s phase.</extracomment>
        <translation>Moon</translation>
    </message>
    <message>
        <source>rises %1</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;; %1 is a clock time.</extracomment>
        <translation>rises %1</translation>
    </message>
    <message>
        <source>sets %1</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;; %1 is a clock time.</extracomment>
        <translation>sets %1</translation>
    </message>
    <message>
        <source>does not set (polar day)</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;.</extracomment>
        <translation>does not set (polar day)</translation>
    </message>
    <message>
        <source>does not rise (polar night)</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;.</extracomment>
        <translation>does not rise (polar night)</translation>
    </message>
    <message>
        <source>new moon</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>new moon</translation>
    </message>
    <message>
        <source>waxing crescent</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>waxing crescent</translation>
    </message>
    <message>
        <source>first quarter</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>first quarter</translation>
    </message>
    <message>
        <source>waxing gibbous</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>waxing gibbous</translation>
    </message>
    <message>
        <source>full moon</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>full moon</translation>
    </message>
    <message>
        <source>waning gibbous</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>waning gibbous</translation>
    </message>
    <message>
        <source>last quarter</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>last quarter</translation>
    </message>
    <message>
        <source>waning crescent</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>waning crescent</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>In the window of the main application. Heading above the units to choose from.</extracomment>
        <translation>Units</translation>
    </message>
    <message>
        <source>Symbols</source>
        <extracomment>In the window of the main application. Heading above the sets of weather symbols.</extracomment>
        <translation>Symbols</translation>
    </message>
    <message>
        <source>Weather</source>
        <extracomment>In the window of the main application. Heading above the state of the weather data.</extracomment>
        <translation>Weather</translation>
    </message>
    <message>
        <source>Colour</source>
        <extracomment>In the window of the main application. A set of weather symbols: in full colour.</extracomment>
        <translation>Colour</translation>
    </message>
    <message>
        <source>Lines</source>
        <extracomment>In the window of the main application. A set of weather symbols: line drawings.</extracomment>
        <translation>Lines</translation>
    </message>
    <message>
        <source>Usual in %1: %2</source>
        <extracomment>In the window of the main application. A button that chooses these units. %1 is a country, %2 are units. The sentence must bear any country&apos;s name.</extracomment>
        <translation>Usual in %1: %2</translation>
    </message>
    <message>
        <source>Usual units: %1</source>
        <extracomment>In the window of the main application. A button that chooses these units.</extracomment>
        <translation>Usual units: %1</translation>
    </message>
    <message>
        <source>Show the panel at login</source>
        <extracomment>In the window of the main application. A box to tick.</extracomment>
        <translation>Show the panel at login</translation>
    </message>
    <message>
        <source>No weather of this place yet: open the panel.</source>
        <extracomment>In the window of the main application. The state of the weather data.</extracomment>
        <translation>No weather of this place yet: open the panel.</translation>
    </message>
    <message>
        <source>Updated %1.</source>
        <extracomment>In the window of the main application. The state of the weather data; %1 is &quot;just now&quot;, &quot;5 min ago&quot; or the like.</extracomment>
        <translation>Updated %1.</translation>
    </message>
    <message>
        <source>just now</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;</extracomment>
        <translation>just now</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;; a number of minutes, 2 or more.</extracomment>
        <translation>%1 min ago</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;; a number of days, 2 or more.</extracomment>
        <translation>%1 days ago</translation>
    </message>
    <message>
        <source>The panel was closed since, or the feed could not be reached.</source>
        <extracomment>In the window of the main application. Behind &quot;Updated 3 h ago.&quot;: why the data is old.</extracomment>
        <translation>The panel was closed since, or the feed could not be reached.</translation>
    </message>
    <message>
        <source>Places: %1</source>
        <extracomment>In the window of the main application. Who made the list of places; %1 is a name and a licence.</extracomment>
        <translation>Places: %1</translation>
    </message>
</context>
</TS>
