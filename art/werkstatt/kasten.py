"""Alles für eine Szene in einem Wort: `from kasten import *`."""
import math                                        # noqa: F401
import random                                      # noqa: F401

from bühne import *                                # noqa: F401,F403
from körper import *                               # noqa: F401,F403
from stoffe import *                               # noqa: F401,F403
from bauteile import *                             # noqa: F401,F403
from pflanzen import *                             # noqa: F401,F403
