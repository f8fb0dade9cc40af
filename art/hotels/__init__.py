"""Die acht Hotels; jedes Modul hat eine Tafel STUFEN: Name der Stufe -> Routine, die sie baut (siehe anlage.py)."""
MODULE = {"Boomerang": "boomerang", "President": "president", "Waikiki": "waikiki", "Taj Mahal": "tajmahal",
          "Safari": "safari", "Fujijama": "fujijama", "L'Étoile": "etoile", "Royal": "royal"}
