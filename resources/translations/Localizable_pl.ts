<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
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
        <translation>kt</translation>
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
        <translation>stopni Celsjusza</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>stopień Celsjusza</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>stopnie Celsjusza</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>stopnia Celsjusza</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>stopni Fahrenheita</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>stopień Fahrenheita</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>stopnie Fahrenheita</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>stopnia Fahrenheita</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>kelwinów</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>kelwin</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>kelwiny</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>kelwina</translation>
    </message>
    <message>
        <source>Beaufort</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>stopni Beauforta</translation>
    </message>
    <message>
        <source>Beaufort</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>stopień Beauforta</translation>
    </message>
    <message>
        <source>Beaufort</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>stopnie Beauforta</translation>
    </message>
    <message>
        <source>Beaufort</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>stopnia Beauforta</translation>
    </message>
    <message>
        <source>knots</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>węzłów</translation>
    </message>
    <message>
        <source>knots</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>węzeł</translation>
    </message>
    <message>
        <source>knots</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>węzły</translation>
    </message>
    <message>
        <source>knots</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>węzła</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>kilometrów na godzinę</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>kilometr na godzinę</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>kilometry na godzinę</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>kilometra na godzinę</translation>
    </message>
    <message>
        <source>metres per second</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>metrów na sekundę</translation>
    </message>
    <message>
        <source>metres per second</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>metr na sekundę</translation>
    </message>
    <message>
        <source>metres per second</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>metry na sekundę</translation>
    </message>
    <message>
        <source>metres per second</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>metra na sekundę</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>mil na godzinę</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>mila na godzinę</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>mile na godzinę</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>mili na godzinę</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>hektopaskali</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>hektopaskal</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>hektopaskale</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>hektopaskala</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>cali słupa rtęci</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>cal słupa rtęci</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>cale słupa rtęci</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>cala słupa rtęci</translation>
    </message>
    <message>
        <source>millimetres</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>milimetrów</translation>
    </message>
    <message>
        <source>millimetres</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>milimetr</translation>
    </message>
    <message>
        <source>millimetres</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>milimetry</translation>
    </message>
    <message>
        <source>millimetres</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>milimetra</translation>
    </message>
    <message>
        <source>inches</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>cali</translation>
    </message>
    <message>
        <source>inches</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>cal</translation>
    </message>
    <message>
        <source>inches</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>cale</translation>
    </message>
    <message>
        <source>inches</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>cala</translation>
    </message>
    <message>
        <source>metres</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>metrów</translation>
    </message>
    <message>
        <source>feet</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>stóp</translation>
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
        <translation>zm.</translation>
    </message>
    <message>
        <source>-</source>
        <extracomment>Stands in the place of a wind direction: calm or unknown.</extracomment>
        <translation>-</translation>
    </message>
    <message>
        <source>Low</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Niski</translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Umiarkowany</translation>
    </message>
    <message>
        <source>High</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Wysoki</translation>
    </message>
    <message>
        <source>Very high</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Bardzo wysoki</translation>
    </message>
    <message>
        <source>Extreme</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Ekstremalny</translation>
    </message>
    <message>
        <source>h</source>
        <extracomment>Hour unit, written directly behind a number: &quot;12h&quot;.</extracomment>
        <translation>h</translation>
    </message>
    <message>
        <source>Gusts</source>
        <extracomment>Caption of the speed of gusts. Little room.</extracomment>
        <translation>Porywy</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <extracomment>Spoken by screen readers. %d is the direction in degrees, %@ the speed with its unit. Keep this order.</extracomment>
        <translation>Wiatr: %d stopni, %@</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>Wiatr: %d stopień, %@</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>Wiatr: %d stopnie, %@</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>Wiatr: %d stopnia, %@</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The tray icon's menu: ends the program.</extracomment>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Show more...</source>
        <extracomment>Button below the rows.</extracomment>
        <translation>Pokaż więcej...</translation>
    </message>
    <message>
        <source>Show less...</source>
        <extracomment>Button below the rows.</extracomment>
        <translation>Pokaż mniej...</translation>
    </message>
    <message>
        <source>Demonstration weather</source>
        <extracomment>Below the panel, in the window&apos;s title and in printed reports: the weather is made up. Room for 30 letters.</extracomment>
        <translation>Pogoda demonstracyjna</translation>
    </message>
    <message>
        <source>Wind</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Wiatr</translation>
    </message>
    <message>
        <source>Precipitation</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Opady</translation>
    </message>
    <message>
        <source>Pressure</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Ciśnienie</translation>
    </message>
    <message>
        <source>Please open Zephyrix to activate the widget.</source>
        <extracomment>Shown in place of the weather until a place has been chosen. Zephyrix is the name of the main application.</extracomment>
        <translation>Otwórz Zephyrix, aby aktywować widżet.</translation>
    </message>
    <message>
        <source>north</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>północny</translation>
    </message>
    <message>
        <source>north-north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>północno-północno-wschodni</translation>
    </message>
    <message>
        <source>north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>północno-wschodni</translation>
    </message>
    <message>
        <source>east-north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>wschodnio-północno-wschodni</translation>
    </message>
    <message>
        <source>east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>wschodni</translation>
    </message>
    <message>
        <source>east-south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>wschodnio-południowo-wschodni</translation>
    </message>
    <message>
        <source>south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>południowo-wschodni</translation>
    </message>
    <message>
        <source>south-south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>południowo-południowo-wschodni</translation>
    </message>
    <message>
        <source>south</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>południowy</translation>
    </message>
    <message>
        <source>south-south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>południowo-południowo-zachodni</translation>
    </message>
    <message>
        <source>south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>południowo-zachodni</translation>
    </message>
    <message>
        <source>west-south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>zachodnio-południowo-zachodni</translation>
    </message>
    <message>
        <source>west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>zachodni</translation>
    </message>
    <message>
        <source>west-north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>zachodnio-północno-zachodni</translation>
    </message>
    <message>
        <source>north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>północno-zachodni</translation>
    </message>
    <message>
        <source>north-north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>północno-północno-zachodni</translation>
    </message>
    <message>
        <source>from changing directions</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>zmienny</translation>
    </message>
    <message>
        <source>wind %1 %2 %3</source>
        <extracomment>Spoken by screen readers. %1 is the direction in words or empty, %2 the speed, %3 its unit.</extracomment>
        <translation>wiatr %1 %2 %3</translation>
    </message>
    <message>
        <source>no wind</source>
        <extracomment>Spoken by screen readers.</extracomment>
        <translation>bezwietrznie</translation>
    </message>
    <message>
        <source>precipitation %1 %2</source>
        <extracomment>Spoken by screen readers. %1 is the amount, %2 its unit.</extracomment>
        <translation>opady %1 %2</translation>
    </message>
    <message>
        <source>in the last hour</source>
        <extracomment>Spoken by screen readers. Behind the amount of precipitation.</extracomment>
        <translation>w ciągu ostatniej godziny</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <extracomment>Spoken by screen readers. Behind the amount of precipitation; %1 is more than one.</extracomment>
        <translation>w ciągu ostatnich %1 godzin</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>w ciągu ostatniej %1 godziny</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <comment>few</comment>
        <extracomment>The form for 2, 3, 4, 22.</extracomment>
        <translation>w ciągu ostatnich %1 godzin</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <comment>other</comment>
        <extracomment>The form for decimals (1,5).</extracomment>
        <translation>w ciągu ostatnich %1 godziny</translation>
    </message>
    <message>
        <source>pressure %1 %2</source>
        <extracomment>Spoken by screen readers. %1 is the air pressure, %2 its unit.</extracomment>
        <translation>ciśnienie %1 %2</translation>
    </message>
    <message>
        <source>observed at %1</source>
        <extracomment>Spoken by screen readers. %1 is a clock time.</extracomment>
        <translation>pomiar o %1</translation>
    </message>
    <message>
        <source>forecast for %1</source>
        <extracomment>Spoken by screen readers. %1 is a place.</extracomment>
        <translation>prognoza: %1</translation>
    </message>
    <message>
        <source>no weather yet</source>
        <extracomment>Spoken by screen readers, behind a place: nothing was fetched for it so far.</extracomment>
        <translation>jeszcze brak danych o pogodzie</translation>
    </message>
    <message>
        <source>high %1</source>
        <extracomment>Spoken by screen readers. Highest temperature of a day; %1 has number and unit.</extracomment>
        <translation>maksymalnie %1</translation>
    </message>
    <message>
        <source>low %1</source>
        <extracomment>Spoken by screen readers. Lowest temperature of a day; %1 has number and unit.</extracomment>
        <translation>minimalnie %1</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <extracomment>Behind the time of an observation that is old; %1 is a number of hours, 2 or more. Little room: hours as a short unit.</extracomment>
        <translation>%1 h temu</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>The place whose weather is shown, in front of its name.</extracomment>
        <translation>Miejsce</translation>
    </message>
    <message>
        <source>Temperature</source>
        <extracomment>In front of the units to choose from.</extracomment>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Search for a place</source>
        <extracomment>In the window of the main application. In the empty field in which a place&apos;s name is typed.</extracomment>
        <translation>Szukaj miejscowości</translation>
    </message>
    <message>
        <source>Places found</source>
        <extracomment>In the window of the main application. Spoken: the list below the search field.</extracomment>
        <translation>Znalezione miejscowości</translation>
    </message>
    <message>
        <source>No place of this name</source>
        <extracomment>In the window of the main application. In the list below the search field.</extracomment>
        <translation>Nie ma takiej miejscowości</translation>
    </message>
    <message>
        <source>No place is chosen</source>
        <extracomment>In the window of the main application. In place of the chosen place&apos;s name.</extracomment>
        <translation>Nie wybrano miejscowości</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <extracomment>In the window of the main application. Caption in front of latitude and longitude.</extracomment>
        <translation>Współrzędne</translation>
    </message>
    <message>
        <source>Local time</source>
        <extracomment>In the window of the main application. Caption in front of the clock time at the place.</extracomment>
        <translation>Czas lokalny</translation>
    </message>
    <message>
        <source>Sun</source>
        <extracomment>In the window of the main application. Caption in front of the times of sunrise and sunset.</extracomment>
        <translation>Słońce</translation>
    </message>
    <message>
        <source>Moon</source>
        <extracomment>In the window of the main application. Caption in front of the moon&apos;s phase.</extracomment>
        <translation>Księżyc</translation>
    </message>
    <message>
        <source>rises %1</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;; %1 is a clock time.</extracomment>
        <translation>wschód %1</translation>
    </message>
    <message>
        <source>sets %1</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;; %1 is a clock time.</extracomment>
        <translation>zachód %1</translation>
    </message>
    <message>
        <source>does not set (polar day)</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;.</extracomment>
        <translation>nie zachodzi (dzień polarny)</translation>
    </message>
    <message>
        <source>does not rise (polar night)</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;.</extracomment>
        <translation>nie wschodzi (noc polarna)</translation>
    </message>
    <message>
        <source>new moon</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>nów</translation>
    </message>
    <message>
        <source>waxing crescent</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>przybywający sierp</translation>
    </message>
    <message>
        <source>first quarter</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>pierwsza kwadra</translation>
    </message>
    <message>
        <source>waxing gibbous</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>przybywający garb</translation>
    </message>
    <message>
        <source>full moon</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>pełnia</translation>
    </message>
    <message>
        <source>waning gibbous</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>ubywający garb</translation>
    </message>
    <message>
        <source>last quarter</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>ostatnia kwadra</translation>
    </message>
    <message>
        <source>waning crescent</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>ubywający sierp</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>In the window of the main application. Heading above the units to choose from.</extracomment>
        <translation>Jednostki</translation>
    </message>
    <message>
        <source>Symbols</source>
        <extracomment>In the window of the main application. Heading above the sets of weather symbols.</extracomment>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Weather</source>
        <extracomment>In the window of the main application. Heading above the state of the weather data.</extracomment>
        <translation>Pogoda</translation>
    </message>
    <message>
        <source>Colour</source>
        <extracomment>In the window of the main application. A set of weather symbols: in full colour.</extracomment>
        <translation>Kolorowe</translation>
    </message>
    <message>
        <source>Lines</source>
        <extracomment>In the window of the main application. A set of weather symbols: line drawings.</extracomment>
        <translation>Kreskowe</translation>
    </message>
    <message>
        <source>Usual in %1: %2</source>
        <extracomment>In the window of the main application. A button that chooses these units. %1 is a country, %2 are units. The sentence must bear any country&apos;s name.</extracomment>
        <translation>Typowe (%1): %2</translation>
    </message>
    <message>
        <source>Usual units: %1</source>
        <extracomment>In the window of the main application. A button that chooses these units.</extracomment>
        <translation>Typowe jednostki: %1</translation>
    </message>
    <message>
        <source>Show the panel at login</source>
        <extracomment>In the window of the main application. A box to tick.</extracomment>
        <translation>Pokazuj panel po zalogowaniu</translation>
    </message>
    <message>
        <source>No weather of this place yet: open the panel.</source>
        <extracomment>In the window of the main application. The state of the weather data.</extracomment>
        <translation>Brak jeszcze pogody dla tego miejsca: otwórz panel.</translation>
    </message>
    <message>
        <source>Updated %1.</source>
        <extracomment>In the window of the main application. The state of the weather data; %1 is &quot;just now&quot;, &quot;5 min ago&quot; or the like.</extracomment>
        <translation>Zaktualizowano %1.</translation>
    </message>
    <message>
        <source>just now</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;</extracomment>
        <translation>przed chwilą</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;; a number of minutes, 2 or more.</extracomment>
        <translation>%1 min temu</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;; a number of days, 2 or more.</extracomment>
        <translation>%1 dni temu</translation>
    </message>
    <message>
        <source>The panel was closed since, or the feed could not be reached.</source>
        <extracomment>In the window of the main application. Behind &quot;Updated 3 h ago.&quot;: why the data is old.</extracomment>
        <translation>Od tego czasu panel był zamknięty lub serwis był niedostępny.</translation>
    </message>
    <message>
        <source>Places: %1</source>
        <extracomment>In the window of the main application. Who made the list of places; %1 is a name and a licence.</extracomment>
        <translation>Miejscowości: %1</translation>
    </message>
</context>
</TS>
