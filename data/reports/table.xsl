<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!-- A web page with one row per shot: when, with what and how it was taken. The text must begin with <html, which
     decides the extension of the report; hence no document type. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:import href="parts/shot.xsl"/>
  <xsl:output method="html" indent="no"/>

  <xsl:template match="/JPEGs">
    <xsl:variable name="heading"><xsl:call-template name="words"><xsl:with-param name="text" select="'Shots'"/></xsl:call-template></xsl:variable>
    <xsl:variable name="language"><xsl:apply-templates select="." mode="language"/></xsl:variable>
    <html lang="{$language}">
      <head>
        <title><xsl:value-of select="$heading"/></title>
        <style>
          body { margin: 2em auto; max-width: 76em; padding: 0 1.5em; background: #fbfaf8; color: #26292c;
                 font: 15px/1.45 "Segoe UI", "Noto Sans", "DejaVu Sans", sans-serif; }
          h1 { margin: 0; font-size: 26px; font-weight: 600; }
          p { margin: 4px 0 22px; color: #6b7176; }
          table { width: 100%; border-collapse: collapse; font-size: 14px; }
          th { padding: 8px 10px; border-bottom: 2px solid #c9662b; text-align: left; font-weight: 600; white-space: nowrap; }
          td { padding: 8px 10px; border-bottom: 1px solid #e4e0da; vertical-align: top; }
          tr:hover td { background: #f4efe8; }
          td.number { text-align: right; white-space: nowrap; }
          th.number { text-align: right; }
          td.date, td.place { white-space: nowrap; }
          a { color: #a64a14; }
          small { display: block; color: #6b7176; font-size: 12px; }
          @media print { body { margin: 0; max-width: none; background: none; } tr { page-break-inside: avoid; } }
        </style>
      </head>
      <body>
        <h1><xsl:value-of select="$heading"/></h1>
        <p><xsl:apply-templates select="." mode="number"/></p>
        <table>
          <thead>
            <tr>
              <th><xsl:call-template name="words"><xsl:with-param name="text" select="'Photograph'"/></xsl:call-template></th>
              <th><xsl:call-template name="words"><xsl:with-param name="text" select="'Date'"/></xsl:call-template></th>
              <th><xsl:call-template name="words"><xsl:with-param name="text" select="'Camera'"/></xsl:call-template></th>
              <th><xsl:call-template name="words"><xsl:with-param name="text" select="'Lens'"/></xsl:call-template></th>
              <th class="number"><xsl:call-template name="words"><xsl:with-param name="text" select="'Time'"/></xsl:call-template></th>
              <th class="number"><xsl:call-template name="words"><xsl:with-param name="text" select="'Aperture'"/></xsl:call-template></th>
              <th class="number"><xsl:call-template name="words"><xsl:with-param name="text" select="'ISO'"/></xsl:call-template></th>
              <th class="number"><xsl:call-template name="words"><xsl:with-param name="text" select="'Focal length'"/></xsl:call-template></th>
              <th><xsl:call-template name="words"><xsl:with-param name="text" select="'Place'"/></xsl:call-template></th>
            </tr>
          </thead>
          <tbody><xsl:apply-templates select="JPEG"/></tbody>
        </table>
      </body>
    </html>
  </xsl:template>

  <xsl:template match="JPEG">
    <tr>
      <td><xsl:value-of select="@fileName"/><small><xsl:apply-templates select="." mode="title"/></small></td>
      <td class="date"><xsl:apply-templates select="." mode="date"/></td>
      <td><xsl:apply-templates select="." mode="camera"/></td>
      <td><xsl:apply-templates select="." mode="lens"/></td>
      <td class="number"><xsl:apply-templates select="." mode="time"/></td>
      <td class="number"><xsl:apply-templates select="." mode="aperture"/></td>
      <td class="number"><xsl:value-of select="Exif/IFDE/IFD[@id='8827']"/></td>
      <td class="number"><xsl:apply-templates select="." mode="focal"/></td>
      <td class="place"><xsl:apply-templates select="." mode="place"/></td>
    </tr>
  </xsl:template>

  <!-- The coordinates, with a link to a map of the place. -->
  <xsl:template match="JPEG" mode="place">
    <xsl:variable name="latitude"><xsl:apply-templates select="." mode="latitude"/></xsl:variable>
    <xsl:variable name="longitude"><xsl:apply-templates select="." mode="longitude"/></xsl:variable>
    <xsl:if test="string($latitude) and string($longitude)">
      <a href="https://www.openstreetmap.org/?mlat={$latitude}&amp;mlon={$longitude}#map=15/{$latitude}/{$longitude}">
        <xsl:value-of select="concat($latitude, ', ', $longitude)"/>
      </a>
    </xsl:if>
  </xsl:template>

</xsl:stylesheet>
