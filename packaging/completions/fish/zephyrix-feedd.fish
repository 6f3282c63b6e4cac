set -l scenarios changing fair clear-night rain thunderstorm snow fog gale polar-day polar-night \
    missing no-observation no-forecast
complete -c zephyrix-feedd -f
complete -c zephyrix-feedd -l port -x -d 'The port, 0 for any free one'
complete -c zephyrix-feedd -l source -x -a 'auto open-meteo met-norway bright-sky demo' \
    -d 'Who is asked for the weather'
complete -c zephyrix-feedd -l contact -x -d 'E-mail or web address told to the services'
complete -c zephyrix-feedd -l source-address -x -d 'Another address of a service, NAME=URL'
complete -c zephyrix-feedd -l scenario -x -a "$scenarios" -d 'The kind of weather'
complete -c zephyrix-feedd -l latitude -x -d 'One place for every id, north positive'
complete -c zephyrix-feedd -l longitude -x -d 'One place for every id, east positive'
complete -c zephyrix-feedd -l zone -x -a '(timedatectl list-timezones 2>/dev/null)' \
    -d 'Time zone of that place'
complete -c zephyrix-feedd -l end-with-input -d 'End when standard input ends'
complete -c zephyrix-feedd -l help -d 'List the options'
complete -c zephyrix-feedd -l version -d 'Print the version'
