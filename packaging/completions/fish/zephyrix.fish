set -l seen __fish_seen_subcommand_from
set -l commands place units source window sky symbol
set -l quantities temperature wind precipitation pressure

complete -c zephyrix -f
complete -c zephyrix -n "not $seen $commands" -a place -d 'The place of the panel'
complete -c zephyrix -n "not $seen $commands" -a units -d 'The units of the panel'
complete -c zephyrix -n "not $seen $commands" -a source -d 'Whom the panel asks for the weather'
complete -c zephyrix -n "not $seen $commands" -a window -d 'Choose in a window'
complete -c zephyrix -n "not $seen $commands" -a sky -d 'Sun and moon of a day'
complete -c zephyrix -n "not $seen $commands" -a symbol -d 'Draw a weather symbol'
complete -c zephyrix -l help -d 'List the commands, or the lines of one'
complete -c zephyrix -n "not $seen $commands" -l version -d 'Print the version'

set -l verb "$seen place; and not $seen search set default show"
complete -c zephyrix -n "$verb" -a search -d 'Places by name'
complete -c zephyrix -n "$verb" -a default -d 'The weather of Berlin'
complete -c zephyrix -n "$verb" -a set -d 'The weather of another place'
complete -c zephyrix -n "$verb" -a show -d 'Which place it is'
complete -c zephyrix -n "$seen search show" -l json -d 'Print JSON'
set -l place_set "$seen place; and $seen set"
complete -c zephyrix -n "$place_set" -l uid -x -d 'Id in the weather service'
complete -c zephyrix -n "$place_set" -l name -x -d 'The name to show'
complete -c zephyrix -n "$place_set" -l lat -x -d 'Degrees, north positive'
complete -c zephyrix -n "$place_set" -l lon -x -d 'Degrees, east positive'
complete -c zephyrix -n "$place_set" -l zone -x -a '(timedatectl list-timezones 2>/dev/null)' \
    -d 'Time zone'
complete -c zephyrix -n "$place_set" -l country-name -x -d 'Name of the country'
complete -c zephyrix -n "$place_set" -l province-name -x -d 'Name of the province'

complete -c zephyrix -n "$seen units; and not $seen $quantities" -a "$quantities"
complete -c zephyrix -n "$seen units; and not $seen $quantities" -l json -d 'Print JSON'
complete -c zephyrix -n "$seen temperature" -a 'C F K'
complete -c zephyrix -n "$seen wind" -a 'Bft kn km/h m/s mph'
complete -c zephyrix -n "$seen precipitation" -a 'mm in'
complete -c zephyrix -n "$seen pressure" -a 'hPa inHg Torr'

set -l sources auto open-meteo met-norway bright-sky demo
complete -c zephyrix -n "$seen source; and not $seen $sources" -a "$sources"
complete -c zephyrix -n "$seen $sources" -l contact -x -d 'E-mail or web address told to the service'
complete -c zephyrix -n "$seen window" -l snapshot -rF -d 'Write a picture of the window'
complete -c zephyrix -n "$seen window" -l scale -x -d 'Pixels a point'
complete -c zephyrix -n "$seen window" -l scheme -x -a 'light dark' -d 'Colours of the window'

complete -c zephyrix -n "$seen sky" -l date -x -d 'The day, YYYY-MM-DD'
complete -c zephyrix -n "$seen sky" -l place -x -d 'Another place: LAT,LON or LAT,LON,ZONE'
complete -c zephyrix -n "$seen sky" -l json -d 'Print JSON'

complete -c zephyrix -n "$seen symbol" -s o -rF -d 'Where to write the symbol'
complete -c zephyrix -n "$seen symbol" -l sheet -rF -d 'Where to write a sheet of all symbols'
complete -c zephyrix -n "$seen symbol" -l size -x -d 'Width and height in points'
complete -c zephyrix -n "$seen symbol" -l scale -x -d 'Pixels a point'
complete -c zephyrix -n "$seen symbol" -l set -x -a '0 1' -d 'The symbol set'
complete -c zephyrix -n "$seen symbol" -l date -x -d 'Date of the phase of the moon'
