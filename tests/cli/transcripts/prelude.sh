# What the commands of the transcripts stand on.

# with_only [NAME=VALUE...] COMMAND...: a command in an environment of these alone. The tool under the
# sanitizers does not look for leaks, which would take as long as all else that it does.
with_only() {
    env -i ASAN_OPTIONS=detect_leaks=0 "$@"
}

fleetwright-cli() {
    with_only "$TOOL" "$@"
}

# picture FILE WIDTH HEIGHT [X Y COLOUR]...: a white picture but for these pixels, whose colours are
# "R,G,B". What is in a picture tells its format, whatever its name.
picture() {
    echo "$@" | awk '{
        for (i = 4; i < NF; i += 3) colours[$i, $(i + 1)] = $(i + 2)
        print "P3", $2, $3, 255 >$1
        for (y = 0; y < $3; y++)
            for (x = 0; x < $2; x++) {
                colour = ((x, y) in colours) ? colours[x, y] : "255,255,255"
                gsub(",", " ", colour)
                print colour >$1
            }
    }'
}

# completed NUMBER WORD...: what bash completes a command line with whose last word is the NUMBERth.
completed() {
    bash -c '. "$0"; COMP_CWORD=$1; shift; COMP_WORDS=(fleetwright-cli "$@"); _fleetwright_cli
             echo "${COMPREPLY[@]}"' "$COMPLETION" "$@"
}

# A small catalogue and three ships: one sound, one that passes systems over, and one that does not
# load.
small_folder() {
    printf '%s\r\n' 'Gun,2 * amount,6 * amount,BEAM,BEAM,FPS,gun.gif' \
        'Cloaking Field,1,mass,SPECIAL,SPECIAL,O,cloak.gif' >weaps.dat
    printf 'Ship Name: "Né"\nMass: 50\nThrust: 4\nSystem: Gun, 3\n' >good.shp
    printf 'Type: Merchant\nSystem: Laser, 1\nSystem: Cloaking Field, 1\nSystem: Gun, 2\n' >part.shp
    printf 'Mass: 10\nThrust: fast\n' >bad.shp
}

# The tool, which has not to wait for anything, on the folder at hand.
tool() {
    timeout 100 env -i ASAN_OPTIONS=detect_leaks=0 "$TOOL" --app . "$@"
}

# with_outline NAME: a map like maps/b.map but for this outline, and good.shp drawn on it.
with_outline() {
    awk -v "line=IMAGE: ${1//\\/\\\\}" '/^IMAGE/ { $0 = line } { print }' maps/b.map >maps/drawn.map
    rm -f drawn.bmp
    tool sheet good.shp --map drawn -o drawn.bmp
    tool check maps/drawn.map | grep :2:
}

# with_icon NAME: a ship's sheet for whose extra damage control party the catalogue has this picture.
with_icon() {
    cp weaps.dat weaps.before
    awk -v "name=${1//\\/\\\\}" '{ if (!sub("party.gif", "")) print; else print $0 name }' \
        weaps.before >weaps.dat
    printf 'Mass: 10\nThrust: 4\nSystem: Damage Control Party, 1\n' >one.shp
    tool sheet one.shp
    tool check weaps.dat | grep :3:
    mv weaps.before weaps.dat
}

# valid FILE...: the names of those that the schema of ships takes.
valid() {
    /usr/bin/python3 -c '
import json, sys, jsonschema
schema = json.load(open(sys.argv[1]))
jsonschema.Draft202012Validator.check_schema(schema)
ships = jsonschema.Draft202012Validator(schema)
print(*[file for file in sys.argv[2:] if ships.is_valid(json.load(open(file)))])
' "$SOURCE/docs/ship.schema.json" "$@"
}
