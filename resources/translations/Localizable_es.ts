<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>grados Celsius</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>grado Celsius</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>grados Fahrenheit</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>grado Fahrenheit</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>kelvins</translation>
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
        <translation>nudos</translation>
    </message>
    <message>
        <source>knots</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>nudo</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>kilómetros por hora</translation>
    </message>
    <message>
        <source>kilometres per hour</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>kilómetro por hora</translation>
    </message>
    <message>
        <source>metres per second</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>metros por segundo</translation>
    </message>
    <message>
        <source>metres per second</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>metro por segundo</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>millas por hora</translation>
    </message>
    <message>
        <source>miles per hour</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>milla por hora</translation>
    </message>
    <message>
        <source>hectopascals</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>hectopascales</translation>
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
        <translation>pulgadas de mercurio</translation>
    </message>
    <message>
        <source>inches of mercury</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>pulgada de mercurio</translation>
    </message>
    <message>
        <source>millimetres</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>milímetros</translation>
    </message>
    <message>
        <source>millimetres</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>milímetro</translation>
    </message>
    <message>
        <source>inches</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>pulgadas</translation>
    </message>
    <message>
        <source>inches</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>pulgada</translation>
    </message>
    <message>
        <source>metres</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>metros</translation>
    </message>
    <message>
        <source>feet</source>
        <extracomment>Spoken behind a number by screen readers; in the form for most numbers (14, 20, 100).</extracomment>
        <translation>pies</translation>
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
        <translation>SSO</translation>
    </message>
    <message>
        <source>SW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>SO</translation>
    </message>
    <message>
        <source>WSW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>OSO</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>O</translation>
    </message>
    <message>
        <source>WNW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>ONO</translation>
    </message>
    <message>
        <source>NW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>NO</translation>
    </message>
    <message>
        <source>NNW</source>
        <extracomment>Where the wind comes from, as forecasters abbreviate it.</extracomment>
        <translation>NNO</translation>
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
        <translation>Bajo</translation>
    </message>
    <message>
        <source>Medium</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Moderado</translation>
    </message>
    <message>
        <source>High</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Very high</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Muy alto</translation>
    </message>
    <message>
        <source>Extreme</source>
        <extracomment>A class of the UV index.</extracomment>
        <translation>Extremo</translation>
    </message>
    <message>
        <source>h</source>
        <extracomment>Hour unit, written directly behind a number: &quot;12h&quot;.</extracomment>
        <translation>h</translation>
    </message>
    <message>
        <source>Gusts</source>
        <extracomment>Caption of the speed of gusts. Little room.</extracomment>
        <translation>Rachas</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <extracomment>Spoken by screen readers. %d is the direction in degrees, %@ the speed with its unit. Keep this order.</extracomment>
        <translation>Viento: %d grados, %@</translation>
    </message>
    <message>
        <source>Wind:%d degrees %@</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>Viento: %d grado, %@</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The tray icon's menu: ends the program.</extracomment>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Show more...</source>
        <extracomment>Button below the rows.</extracomment>
        <translation>Mostrar más...</translation>
    </message>
    <message>
        <source>Show less...</source>
        <extracomment>Button below the rows.</extracomment>
        <translation>Mostrar menos...</translation>
    </message>
    <message>
        <source>Demonstration weather</source>
        <extracomment>Below the panel, in the window&apos;s title and in printed reports: the weather is made up. Room for 30 letters.</extracomment>
        <translation>Tiempo de demostración</translation>
    </message>
    <message>
        <source>Wind</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Viento</translation>
    </message>
    <message>
        <source>Precipitation</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Precipitación</translation>
    </message>
    <message>
        <source>Pressure</source>
        <extracomment>In front of the values, in the report that is printed for people.</extracomment>
        <translation>Presión</translation>
    </message>
    <message>
        <source>Please open Zephyrix to activate the widget.</source>
        <extracomment>Shown in place of the weather until a place has been chosen. Zephyrix is the name of the main application.</extracomment>
        <translation>Abra Zephyrix para activar el widget.</translation>
    </message>
    <message>
        <source>north</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>norte</translation>
    </message>
    <message>
        <source>north-north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>nornoreste</translation>
    </message>
    <message>
        <source>north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>noreste</translation>
    </message>
    <message>
        <source>east-north-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>estenoreste</translation>
    </message>
    <message>
        <source>east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>este</translation>
    </message>
    <message>
        <source>east-south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>estesureste</translation>
    </message>
    <message>
        <source>south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>sureste</translation>
    </message>
    <message>
        <source>south-south-east</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>sursureste</translation>
    </message>
    <message>
        <source>south</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>sur</translation>
    </message>
    <message>
        <source>south-south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>sursuroeste</translation>
    </message>
    <message>
        <source>south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>suroeste</translation>
    </message>
    <message>
        <source>west-south-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>oestesuroeste</translation>
    </message>
    <message>
        <source>west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>oeste</translation>
    </message>
    <message>
        <source>west-north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>oestenoroeste</translation>
    </message>
    <message>
        <source>north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>noroeste</translation>
    </message>
    <message>
        <source>north-north-west</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>nornoroeste</translation>
    </message>
    <message>
        <source>from changing directions</source>
        <extracomment>Spoken direction the wind comes from, in place of %1 of &quot;wind %1 %2 %3&quot;.</extracomment>
        <translation>de direcciones variables</translation>
    </message>
    <message>
        <source>wind %1 %2 %3</source>
        <extracomment>Spoken by screen readers. %1 is the direction in words or empty, %2 the speed, %3 its unit.</extracomment>
        <translation>viento %1 %2 %3</translation>
    </message>
    <message>
        <source>no wind</source>
        <extracomment>Spoken by screen readers.</extracomment>
        <translation>sin viento</translation>
    </message>
    <message>
        <source>precipitation %1 %2</source>
        <extracomment>Spoken by screen readers. %1 is the amount, %2 its unit.</extracomment>
        <translation>precipitación %1 %2</translation>
    </message>
    <message>
        <source>in the last hour</source>
        <extracomment>Spoken by screen readers. Behind the amount of precipitation.</extracomment>
        <translation>en la última hora</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <extracomment>Spoken by screen readers. Behind the amount of precipitation; %1 is more than one.</extracomment>
        <translation>en las últimas %1 horas</translation>
    </message>
    <message>
        <source>in the last %1 hours</source>
        <comment>one</comment>
        <extracomment>The form for 1.</extracomment>
        <translation>en la última %1 hora</translation>
    </message>
    <message>
        <source>pressure %1 %2</source>
        <extracomment>Spoken by screen readers. %1 is the air pressure, %2 its unit.</extracomment>
        <translation>presión %1 %2</translation>
    </message>
    <message>
        <source>observed at %1</source>
        <extracomment>Spoken by screen readers. %1 is a clock time.</extracomment>
        <translation>observado a las %1</translation>
    </message>
    <message>
        <source>forecast for %1</source>
        <extracomment>Spoken by screen readers. %1 is a place.</extracomment>
        <translation>previsión para %1</translation>
    </message>
    <message>
        <source>no weather yet</source>
        <extracomment>Spoken by screen readers, behind a place: nothing was fetched for it so far.</extracomment>
        <translation>aún no hay datos del tiempo</translation>
    </message>
    <message>
        <source>high %1</source>
        <extracomment>Spoken by screen readers. Highest temperature of a day; %1 has number and unit.</extracomment>
        <translation>máxima %1</translation>
    </message>
    <message>
        <source>low %1</source>
        <extracomment>Spoken by screen readers. Lowest temperature of a day; %1 has number and unit.</extracomment>
        <translation>mínima %1</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <extracomment>Behind the time of an observation that is old; %1 is a number of hours, 2 or more. Little room: hours as a short unit.</extracomment>
        <translation>hace %1 h</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>The place whose weather is shown, in front of its name.</extracomment>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Temperature</source>
        <extracomment>In front of the units to choose from.</extracomment>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Search for a place</source>
        <extracomment>In the window of the main application. In the empty field in which a place&apos;s name is typed.</extracomment>
        <translation>Buscar un lugar</translation>
    </message>
    <message>
        <source>Places found</source>
        <extracomment>In the window of the main application. Spoken: the list below the search field.</extracomment>
        <translation>Lugares encontrados</translation>
    </message>
    <message>
        <source>No place of this name</source>
        <extracomment>In the window of the main application. In the list below the search field.</extracomment>
        <translation>Ningún lugar con este nombre</translation>
    </message>
    <message>
        <source>No place is chosen</source>
        <extracomment>In the window of the main application. In place of the chosen place&apos;s name.</extracomment>
        <translation>Ningún lugar elegido</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <extracomment>In the window of the main application. Caption in front of latitude and longitude.</extracomment>
        <translation>Coordenadas</translation>
    </message>
    <message>
        <source>Local time</source>
        <extracomment>In the window of the main application. Caption in front of the clock time at the place.</extracomment>
        <translation>Hora local</translation>
    </message>
    <message>
        <source>Sun</source>
        <extracomment>In the window of the main application. Caption in front of the times of sunrise and sunset.</extracomment>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Moon</source>
        <extracomment>In the window of the main application. Caption in front of the moon&apos;s phase.</extracomment>
        <translation>Luna</translation>
    </message>
    <message>
        <source>rises %1</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;; %1 is a clock time.</extracomment>
        <translation>sale %1</translation>
    </message>
    <message>
        <source>sets %1</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;; %1 is a clock time.</extracomment>
        <translation>se pone %1</translation>
    </message>
    <message>
        <source>does not set (polar day)</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;.</extracomment>
        <translation>no se pone (día polar)</translation>
    </message>
    <message>
        <source>does not rise (polar night)</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Sun&quot;.</extracomment>
        <translation>no sale (noche polar)</translation>
    </message>
    <message>
        <source>new moon</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>luna nueva</translation>
    </message>
    <message>
        <source>waxing crescent</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>luna creciente</translation>
    </message>
    <message>
        <source>first quarter</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>cuarto creciente</translation>
    </message>
    <message>
        <source>waxing gibbous</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>gibosa creciente</translation>
    </message>
    <message>
        <source>full moon</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>luna llena</translation>
    </message>
    <message>
        <source>waning gibbous</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>gibosa menguante</translation>
    </message>
    <message>
        <source>last quarter</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>cuarto menguante</translation>
    </message>
    <message>
        <source>waning crescent</source>
        <extracomment>In the window of the main application. Behind the caption &quot;Moon&quot;: a phase.</extracomment>
        <translation>luna menguante</translation>
    </message>
    <message>
        <source>Units</source>
        <extracomment>In the window of the main application. Heading above the units to choose from.</extracomment>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Symbols</source>
        <extracomment>In the window of the main application. Heading above the sets of weather symbols.</extracomment>
        <translation>Símbolos</translation>
    </message>
    <message>
        <source>Weather</source>
        <extracomment>In the window of the main application. Heading above the state of the weather data.</extracomment>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Colour</source>
        <extracomment>In the window of the main application. A set of weather symbols: in full colour.</extracomment>
        <translation>Color</translation>
    </message>
    <message>
        <source>Lines</source>
        <extracomment>In the window of the main application. A set of weather symbols: line drawings.</extracomment>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>Usual in %1: %2</source>
        <extracomment>In the window of the main application. A button that chooses these units. %1 is a country, %2 are units. The sentence must bear any country&apos;s name.</extracomment>
        <translation>Habituales (%1): %2</translation>
    </message>
    <message>
        <source>Usual units: %1</source>
        <extracomment>In the window of the main application. A button that chooses these units.</extracomment>
        <translation>Unidades habituales: %1</translation>
    </message>
    <message>
        <source>Show the panel at login</source>
        <extracomment>In the window of the main application. A box to tick.</extracomment>
        <translation>Mostrar el panel al iniciar sesión</translation>
    </message>
    <message>
        <source>No weather of this place yet: open the panel.</source>
        <extracomment>In the window of the main application. The state of the weather data.</extracomment>
        <translation>Aún no hay tiempo de este lugar: abra el panel.</translation>
    </message>
    <message>
        <source>Updated %1.</source>
        <extracomment>In the window of the main application. The state of the weather data; %1 is &quot;just now&quot;, &quot;5 min ago&quot; or the like.</extracomment>
        <translation>Actualizado %1.</translation>
    </message>
    <message>
        <source>just now</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;</extracomment>
        <translation>ahora mismo</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;; a number of minutes, 2 or more.</extracomment>
        <translation>hace %1 min</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <extracomment>In the window of the main application. In place of %1 of &quot;Updated %1.&quot;; a number of days, 2 or more.</extracomment>
        <translation>hace %1 días</translation>
    </message>
    <message>
        <source>The panel was closed since, or the feed could not be reached.</source>
        <extracomment>In the window of the main application. Behind &quot;Updated 3 h ago.&quot;: why the data is old.</extracomment>
        <translation>Desde entonces el panel estaba cerrado o el servicio no respondía.</translation>
    </message>
    <message>
        <source>Places: %1</source>
        <extracomment>In the window of the main application. Who made the list of places; %1 is a name and a licence.</extracomment>
        <translation>Lugares: %1</translation>
    </message>
</context>
</TS>
