"""Pages that the tool makes of fleets."""

import subprocess


def tool_folder(folder, tool, pictures):
    """What is delivered beside the tool, with the pictures as they come, in a folder of its own. Whoever has started
    the program has pictures beside it that may be others."""
    own = folder / "app"
    own.mkdir()
    for file in tool.parent.iterdir():
        if file.name != "images":
            (own / file.name).symlink_to(file)
    (own / "images").symlink_to(pictures / "images")
    return own


def make_page(tool, own, fleet, page):
    subprocess.run([tool, "--app", own, "fleet", fleet, "--play", page], check=True, stdout=subprocess.DEVNULL)
