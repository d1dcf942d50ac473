"""Every link in the pages leads to a file that is there.

    python3 check_links.py FOLDER PAGE...
"""

import pathlib
import re
import sys


def main():
    folder = pathlib.Path(sys.argv[1])
    links = [(page, target) for page in sys.argv[2:]
             for target in re.findall(r"\]\(([^)#:]+)(?:#[^)]*)?\)", (folder / page).read_text(encoding="utf-8"))]
    dead = [f"{page}: {target}" for page, target in links if not (folder / page).parent.joinpath(target).exists()]
    print("\n".join(dead) or f"{len(links)} links")
    return 1 if dead or not links else 0


if __name__ == "__main__":
    sys.exit(main())
