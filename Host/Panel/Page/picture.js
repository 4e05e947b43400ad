// The picture: zoom, pan, its figures, the value under the pointer.

import { byId, download, later, make, press, remember, setText } from './dom.js';
import { drawHistogram } from './histogram.js';

const closest = 64;     // screen pixels per pixel of the camera
const wheelStep = 1.2;
const worldMargin = 24; // screen pixels, for handles at the edge
const panStep = 40;     // screen pixels
const crispFrom = 1.5;  // enlargement from which pixels are shown as squares
const saturationShown = 0.1; // percent
const pixelPatience = 500; // milliseconds
const patience = 3000; // milliseconds

function clamp(value, low, high) {
	return Math.min(Math.max(value, low), high);
}

const figures = [
	['rate', 'rate', ({ rate }) => `${rate.toFixed(1)} /s`],
	['size', 'size', ({ width, height, format }) => `${width} × ${height} ${format}`],
	['missing', 'missing', ({ missing }) => String(missing)],
	['range', 'min – max', ({ minimum, maximum, fullScale }) => `${minimum} – ${maximum} of ${fullScale}`],
	['mean', 'mean', ({ mean }) => mean.toFixed(1), true],
	['saturated', 'saturated', ({ saturatedPercent }) => `${saturatedPercent.toFixed(2)} %`],
	['sharpness', 'sharpness', ({ sharpnessPerMille }) => `${sharpnessPerMille.toFixed(1)} ‰`, true],
	['pixel', 'x, y: value', () => null],
];

export class PictureView {
	#link;
	#told;
	#changed = new Set();
	#stage = byId('stage');
	#canvas = byId('canvas');
	#picture = null; // the last description
	#bitmap = null;  // and what it shows
	#area = null;    // left, top, width, height
	#zoom = 0;       // screen pixels per pixel of the camera
	#centre = { x: 0, y: 0 };
	#fits = true;
	#paused = false;
	#pointer = null; // where it is, in pixels of the camera
	#asked = 0;      // when the value of a pixel was asked for
	#figures = new Map();
	#late = 0;
	/** What is fitted into the stage: null for the picture, else an area in its pixels, which may reach beyond it. */
	world = null;

	/** @param told called when another part, or another size, is to be shown */
	constructor(link, plots, told) {
		this.#link = link;
		this.#told = later(50, told);
		this.#makeFigures(plots);
		link.on('picture', (picture) => this.#describe(picture, plots));
		link.on('binary', (jpeg) => this.#show(jpeg));
		link.on('pixel', (pixel) => this.#showPixel(pixel));
		link.on('noPicture', ({ message }) => this.#showMessage(`No picture: ${message}`));
		new ResizeObserver(() => this.#resize()).observe(this.#stage);
		this.#handleButtons();
		this.#handlePointer();
		this.#stage.addEventListener('keydown', (event) => this.#handleKey(event));
	}

	/** Calls a handler whenever the picture moves on the screen, or has another size. */
	onChange(handler) {
		this.#changed.add(handler);
	}

	get size() {
		return this.#picture && { width: this.#picture.width, height: this.#picture.height };
	}

	toScreen({ x, y }) {
		const { clientWidth, clientHeight } = this.#stage;
		return {
			x: (x - this.#centre.x) * this.#zoom + clientWidth / 2,
			y: (y - this.#centre.y) * this.#zoom + clientHeight / 2,
		};
	}

	/** @param event of a pointer */
	toPicture({ clientX, clientY }) {
		const box = this.#stage.getBoundingClientRect();
		return {
			x: (clientX - box.left - box.width / 2) / this.#zoom + this.#centre.x,
			y: (clientY - box.top - box.height / 2) / this.#zoom + this.#centre.y,
		};
	}

	/** What the program is to send: the visible part, no larger than the screen shows it. */
	wish() {
		const { clientWidth, clientHeight } = this.#stage;
		if (this.#paused || clientWidth === 0 || clientHeight === 0) {
			return null;
		}
		const area = this.#visibleArea();
		const [width, height] = (area ? [area[2] * this.#zoom, area[3] * this.#zoom] : [clientWidth, clientHeight])
			.map((pixels) => Math.max(1, Math.ceil(pixels * devicePixelRatio)));
		return { width, height, area, trigger: byId('trigger').checked };
	}

	/** Left, top, width and height; null if all of it is visible. */
	#visibleArea() {
		if (!this.#picture || this.#zoom === 0) {
			return null;
		}
		const { width, height } = this.#picture;
		const axis = (centre, room, length) => {
			const half = room / 2 / this.#zoom;
			const first = clamp(Math.floor(centre - half), 0, length - 1);
			return [first, Math.max(clamp(Math.ceil(centre + half), 0, length) - first, 1)];
		};
		const [left, visibleWidth] = axis(this.#centre.x, this.#stage.clientWidth, width);
		const [top, visibleHeight] = axis(this.#centre.y, this.#stage.clientHeight, height);
		return visibleWidth === width && visibleHeight === height ? null : [left, top, visibleWidth, visibleHeight];
	}

	fit() {
		this.#fits = true;
		const fitted = this.world ?? { left: 0, top: 0, ...this.size };
		if (this.#picture) {
			const { clientWidth, clientHeight } = this.#stage;
			const margin = this.world ? worldMargin : 0;
			this.#zoom = Math.min((clientWidth - margin) / fitted.width, (clientHeight - margin) / fitted.height);
			this.#centre = { x: fitted.left + fitted.width / 2, y: fitted.top + fitted.height / 2 };
		}
		this.#moved();
	}

	/** Zooms about a point, which stays where it is on the screen. */
	#zoomTo(zoom, point = this.#centre) {
		const { clientWidth, clientHeight } = this.#stage;
		const { width, height } = this.#picture ?? { width: 1, height: 1 };
		const smallest = Math.min(clientWidth / width, clientHeight / height, 1) / 4;
		const next = clamp(zoom, smallest, closest);
		const keep = this.#zoom / next;
		this.#centre = {
			x: point.x + (this.#centre.x - point.x) * keep, y: point.y + (this.#centre.y - point.y) * keep,
		};
		this.#zoom = next;
		this.#fits = false;
		this.#moved();
	}

	#pan(x, y) {
		const { left, top, width, height } = this.world ?? { left: 0, top: 0, ...this.size };
		this.#centre = {
			x: clamp(this.#centre.x + x / this.#zoom, left, left + width),
			y: clamp(this.#centre.y + y / this.#zoom, top, top + height),
		};
		this.#fits = false;
		this.#moved();
	}

	#moved() {
		byId('fit').setAttribute('aria-pressed', this.#fits);
		setText(byId('zoom'), this.#picture ? `${(100 * this.#zoom * devicePixelRatio).toPrecision(3)} %` : '–');
		this.#draw();
		for (const handler of this.#changed) {
			handler();
		}
		this.#told();
	}

	#resize() {
		const { clientWidth, clientHeight } = this.#stage;
		this.#canvas.width = Math.round(clientWidth * devicePixelRatio);
		this.#canvas.height = Math.round(clientHeight * devicePixelRatio);
		this.#fits ? this.fit() : this.#moved();
	}

	#describe(picture, plots) {
		const before = this.#picture;
		this.#picture = picture;
		for (const [key, , print] of figures) {
			const text = print(picture);
			if (text !== null) {
				setText(this.#figures.get(key), text);
			}
		}
		this.#figures.get('saturated').classList.toggle('bad', picture.saturatedPercent >= saturationShown);
		this.#figures.get('missing').classList.toggle('bad', picture.missing > 0);
		drawHistogram(byId('histogram'), picture.histogram, picture.saturatedPercent >= saturationShown);
		plots.add('picture mean', picture.mean);
		plots.add('picture sharpness', picture.sharpnessPerMille);
		if (before?.width !== picture.width || before?.height !== picture.height) {
			this.#fits = this.#fits || before === null;
			this.#fits ? this.fit() : this.#moved();
		}
	}

	async #show(jpeg) {
		const { area } = this.#picture;
		try {
			const bitmap = await createImageBitmap(jpeg);
			this.#bitmap?.close();
			this.#bitmap = bitmap;
			this.#area = area;
			this.#showMessage('');
			clearTimeout(this.#late);
			this.#late = setTimeout(() => this.#paused || this.#showMessage('No picture comes'), patience);
			this.#draw();
			this.#askForPixel();
		} catch {
			this.#showMessage('No picture: the browser cannot decode it.');
		}
		this.#link.send({ type: 'shown' });
	}

	#draw() {
		const context = this.#canvas.getContext('2d');
		context.clearRect(0, 0, this.#canvas.width, this.#canvas.height);
		if (!this.#bitmap || !this.#area) {
			return;
		}
		const [left, top, width, height] = this.#area;
		const corner = this.toScreen({ x: left, y: top });
		const scale = devicePixelRatio;
		context.imageSmoothingEnabled = width * this.#zoom * scale / this.#bitmap.width < crispFrom;
		context.drawImage(this.#bitmap, corner.x * scale, corner.y * scale,
			width * this.#zoom * scale, height * this.#zoom * scale);
	}

	#showMessage(text) {
		if (text) {
			setText(this.#figures.get('rate'), '–');
		}
		setText(byId('no-picture'), text);
		byId('no-picture').hidden = text === '';
	}

	#makeFigures(plots) {
		for (const [key, label, , curve] of figures) {
			const value = make('dd', { id: `figure-${key}` }, '–');
			this.#figures.set(key, value);
			byId('figures').append(make('div', {}, make('dt', {}, label, curve ? make('button', {
				class: 'tool', title: 'Show it as a curve', 'aria-label': `Curve of ${label}`,
				onclick: () => plots.toggle(`picture ${key}`),
			}, '∿') : null), value));
		}
	}

	#handleButtons() {
		byId('fit').onclick = () => this.fit();
		byId('one').onclick = () => this.#zoomTo(1 / devicePixelRatio);
		byId('closer').onclick = () => this.#zoomTo(this.#zoom * wheelStep ** 2);
		byId('farther').onclick = () => this.#zoomTo(this.#zoom / wheelStep ** 2);
		remember(byId('trigger'), () => this.#told());
		byId('pause').onclick = () => {
			this.#paused = press(byId('pause'));
			this.#told();
		};
		byId('save-picture').onclick = async () => {
			const { status, body } = await this.#link.request('GET', '/api/picture.png', { as: 'blob' });
			if (status === 200) {
				download(body, `${byId('model').textContent}-${this.#picture?.number ?? 0}.png`);
			} else {
				this.#showMessage(body.message);
			}
		};
	}

	#handlePointer() {
		const stage = this.#stage;
		let from = null;
		stage.addEventListener('wheel', (event) => {
			event.preventDefault();
			this.#zoomTo(this.#zoom * wheelStep ** -Math.sign(event.deltaY), this.toPicture(event));
		}, { passive: false });
		stage.addEventListener('pointerdown', (event) => {
			if (event.button === 0 && this.#picture) {
				event.preventDefault(); // selects no text
				from = { x: event.clientX, y: event.clientY };
				stage.setPointerCapture(event.pointerId);
				stage.focus({ preventScroll: true });
			}
		});
		stage.addEventListener('pointermove', (event) => {
			if (from) {
				this.#pan(from.x - event.clientX, from.y - event.clientY);
				from = { x: event.clientX, y: event.clientY };
			}
			this.#pointer = this.toPicture(event);
			this.#askForPixel();
		});
		stage.addEventListener('lostpointercapture', () => {
			from = null;
		});
		stage.addEventListener('pointerleave', () => {
			this.#pointer = null;
			setText(this.#figures.get('pixel'), '–');
		});
	}

	#handleKey(event) {
		if (event.target !== this.#stage || event.ctrlKey || event.altKey || event.metaKey) {
			return;
		}
		const actions = {
			'+': () => this.#zoomTo(this.#zoom * wheelStep),
			'-': () => this.#zoomTo(this.#zoom / wheelStep), '0': () => this.fit(),
			'1': () => this.#zoomTo(1 / devicePixelRatio),
			ArrowLeft: () => this.#pan(-panStep, 0), ArrowRight: () => this.#pan(panStep, 0),
			ArrowUp: () => this.#pan(0, -panStep), ArrowDown: () => this.#pan(0, panStep),
		};
		if (event.key in actions && this.#picture) {
			event.preventDefault();
			actions[event.key]();
		}
	}

	/** One question at a time. */
	#askForPixel() {
		if (!this.#pointer || !this.#picture || performance.now() - this.#asked < pixelPatience) {
			return;
		}
		const x = Math.floor(this.#pointer.x);
		const y = Math.floor(this.#pointer.y);
		if (x >= 0 && y >= 0 && x < this.#picture.width && y < this.#picture.height) {
			this.#asked = performance.now();
			this.#link.send({ type: 'pixel', x, y });
		} else {
			setText(this.#figures.get('pixel'), '–');
		}
	}

	#showPixel({ x, y, samples }) {
		this.#asked = 0;
		if (this.#pointer) {
			setText(this.#figures.get('pixel'), `${x}, ${y}: ${samples.join(' ') || '–'}`);
			if (Math.floor(this.#pointer.x) !== x || Math.floor(this.#pointer.y) !== y) {
				this.#askForPixel();
			}
		}
	}
}
