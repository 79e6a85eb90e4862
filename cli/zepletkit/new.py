"""Makes a directory NAME with a plugin that builds, passes its own test and shows a page.

Templates:
  page         a page with a button that sends a request, and shows the event that follows
  instruction  an instruction for the robot's programs, with the widget that edits it
  background   watches the robot and shows what it saw in the status bar
"""

import shlex
from pathlib import Path

from . import template
from .names import PluginName, checked_label


def add_arguments(parser):
    parser.add_argument("name", metavar="NAME",
                        help="the plugin's name: a letter or digit, then at most 63 letters, "
                             "digits, _ and -")
    parser.add_argument("--template", choices=template.KINDS, default="page",
                        help="what kind of plugin (page)")
    parser.add_argument("--directory", type=Path, default=Path(), metavar="DIR",
                        help="where to make it (the current directory)")
    parser.add_argument("--label", metavar="TEXT",
                        help="what the navigation calls it (the name)")


def run(arguments):
    name = PluginName(arguments.name, taken=arguments.kit.own_plugins())
    label = checked_label(arguments.label if arguments.label is not None else name.label)
    made = template.place(arguments.kit.template(arguments.template), arguments.directory, name,
                          label)
    print(f'Made the plugin "{name}" in {made}. Go on with:\n\n'
          f"  cd {shlex.quote(str(made))}\n"
          "  zeplet test\n"
          "  zeplet run\n")
    return 0
