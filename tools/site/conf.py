"""Sphinx for the pages that pages.py writes."""

project = "libtintvert"
html_title = "libtintvert"
extensions = ["myst_parser"]
myst_heading_anchors = 3
html_theme = "theme"
html_theme_path = ["."]
html_js_files = ["explorer.js"]
html_copy_source = False
html_use_index = False
html_domain_indices = False
html_permalinks_icon = "#"
smartquotes = False
nitpicky = True
